// soiltool.h -- the soil tool: its table of what it has of its own, and its commands.
#pragma once

#include "editors/toolcommands.h"
#include "sections/soilfile.h"

extern ToolRecord SoilTool;

namespace frmSoil
{
inline constexpr auto mnuNew = OfTool<SoilTool, ToolNew>;
inline constexpr auto mnuOpen = OfTool<SoilTool, ToolOpen>;
inline constexpr auto mnuSave = OfTool<SoilTool, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<SoilTool, ToolSaveAs>;
inline constexpr auto mnuPreview = OfTool<SoilTool, ToolPreview>;
inline constexpr auto mnuBatchDraw = OfTool<SoilTool, ToolBatchDraw>;
inline constexpr auto mnuPrint = OfTool<SoilTool, ToolPrint>;
inline constexpr auto mnuVeskLog = FromTool<SoilTool, Tool::Log>;
inline constexpr auto mnuVeskCross = FromTool<SoilTool, Tool::Cross>;
inline constexpr auto mnuVeskFence = FromTool<SoilTool, Tool::Fence>;
inline constexpr auto mnuVeskGIS = FromTool<SoilTool, Tool::GIS>;
inline constexpr auto mnuExit = OfTool<SoilTool, ToolExit>;
} // namespace frmSoil
