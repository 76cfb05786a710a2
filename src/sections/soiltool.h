// soiltool.h -- the soil tool: its table of what it has of its own, and its commands.
#pragma once

#include "sections/soilfile.h"
#include "tools/toolcommands.h"

extern ToolRecord SoilForm;

namespace frmSoil
{
inline constexpr auto mnuNew = OfTool<SoilForm, ToolNew>;
inline constexpr auto mnuOpen = OfTool<SoilForm, ToolOpen>;
inline constexpr auto mnuSave = OfTool<SoilForm, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<SoilForm, ToolSaveAs>;
inline constexpr auto mnuPreview = OfTool<SoilForm, ToolPreview>;
inline constexpr auto mnuBatchDraw = OfTool<SoilForm, ToolBatchDraw>;
inline constexpr auto mnuPrint = OfTool<SoilForm, ToolPrint>;
inline constexpr auto mnuVeskLog = FromTool<SoilForm, Tool::Log>;
inline constexpr auto mnuVeskCross = FromTool<SoilForm, Tool::Cross>;
inline constexpr auto mnuVeskFence = FromTool<SoilForm, Tool::Fence>;
inline constexpr auto mnuVeskGIS = FromTool<SoilForm, Tool::GIS>;
inline constexpr auto mnuExit = OfTool<SoilForm, ToolExit>;
} // namespace frmSoil
