// fencetool.h -- the fence tool: its table of what it has of its own, and its commands.
#pragma once

#include "editors/toolcommands.h"
#include "sections/fencefile.h"

extern ToolRecord FenceTool;

namespace frmFence
{
void LabelBoxes(); // those by design, or those that the prompts have set

inline constexpr auto mnuNew = OfTool<FenceTool, ToolNew>;
inline constexpr auto mnuOpen = OfTool<FenceTool, ToolOpen>;
inline constexpr auto mnuSave = OfTool<FenceTool, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<FenceTool, ToolSaveAs>;
inline constexpr auto mnuPreview = OfTool<FenceTool, ToolPreview>;
inline constexpr auto mnuBatchDraw = OfTool<FenceTool, ToolBatchDraw>;
inline constexpr auto mnuPrint = OfTool<FenceTool, ToolPrint>;
inline constexpr auto mnuInsertRow = OfTool<FenceTool, ToolInsertRow>;
inline constexpr auto mnuDeleteRow = OfTool<FenceTool, ToolDeleteRow>;
inline constexpr auto mnuVeskLog = FromTool<FenceTool, Tool::Log>;
inline constexpr auto mnuVeskCross = FromTool<FenceTool, Tool::Cross>;
inline constexpr auto mnuVeskGIS = FromTool<FenceTool, Tool::GIS>;
inline constexpr auto mnuVeskSoil = FromTool<FenceTool, Tool::Soil>;
inline constexpr auto mnuExit = OfTool<FenceTool, ToolExit>;
} // namespace frmFence
