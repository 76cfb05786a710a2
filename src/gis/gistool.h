// gistool.h -- the GIS workbench as a tool: its table of what it has of its own, and its commands. It draws nothing.
#pragma once

#include "editors/toolcommands.h"
#include "gis/gisfile.h"

extern ToolRecord GisTool;

namespace frmGIS
{
inline constexpr auto mnuNew = OfTool<GisTool, ToolNew>;
inline constexpr auto mnuOpen = OfTool<GisTool, ToolOpen>;
inline constexpr auto mnuSave = OfTool<GisTool, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<GisTool, ToolSaveAs>;
inline constexpr auto mnuVeskLog = FromTool<GisTool, Tool::Log>;
inline constexpr auto mnuVeskCross = FromTool<GisTool, Tool::Cross>;
inline constexpr auto mnuVeskFence = FromTool<GisTool, Tool::Fence>;
inline constexpr auto mnuVeskSoil = FromTool<GisTool, Tool::Soil>;
inline constexpr auto mnuExit = OfTool<GisTool, ToolExit>;
} // namespace frmGIS
