// gistool.h -- the GIS workbench as a tool: its table of what it has of its own, and its commands. It draws nothing.
#pragma once

#include "gis/gisfile.h"
#include "tools/toolcommands.h"

extern ToolRecord GisForm;

namespace frmGIS
{
inline constexpr auto mnuNew = OfTool<GisForm, ToolNew>;
inline constexpr auto mnuOpen = OfTool<GisForm, ToolOpen>;
inline constexpr auto mnuSave = OfTool<GisForm, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<GisForm, ToolSaveAs>;
inline constexpr auto mnuVeskLog = FromTool<GisForm, Tool::Log>;
inline constexpr auto mnuVeskCross = FromTool<GisForm, Tool::Cross>;
inline constexpr auto mnuVeskFence = FromTool<GisForm, Tool::Fence>;
inline constexpr auto mnuVeskSoil = FromTool<GisForm, Tool::Soil>;
inline constexpr auto mnuExit = OfTool<GisForm, ToolExit>;
} // namespace frmGIS
