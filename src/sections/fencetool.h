// fencetool.h -- the fence tool: its table of what it has of its own, and its commands.
#pragma once

#include "sections/fencefile.h"
#include "tools/toolcommands.h"

extern ToolRecord FenceForm;

namespace frmFence
{
void LabelBoxes(); // Sets the labels: those by design, or those that the prompts have set.

inline constexpr auto mnuNew = OfTool<FenceForm, ToolNew>;
inline constexpr auto mnuOpen = OfTool<FenceForm, ToolOpen>;
inline constexpr auto mnuSave = OfTool<FenceForm, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<FenceForm, ToolSaveAs>;
inline constexpr auto mnuPreview = OfTool<FenceForm, ToolPreview>;
inline constexpr auto mnuBatchDraw = OfTool<FenceForm, ToolBatchDraw>;
inline constexpr auto mnuPrint = OfTool<FenceForm, ToolPrint>;
inline constexpr auto mnuInsertRow = OfTool<FenceForm, ToolInsertRow>;
inline constexpr auto mnuDeleteRow = OfTool<FenceForm, ToolDeleteRow>;
inline constexpr auto mnuVeskLog = FromTool<FenceForm, Tool::Log>;
inline constexpr auto mnuVeskCross = FromTool<FenceForm, Tool::Cross>;
inline constexpr auto mnuVeskGIS = FromTool<FenceForm, Tool::GIS>;
inline constexpr auto mnuVeskSoil = FromTool<FenceForm, Tool::Soil>;
inline constexpr auto mnuExit = OfTool<FenceForm, ToolExit>;
} // namespace frmFence
