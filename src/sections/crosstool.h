// crosstool.h -- the cross section tool: its table of what it has of its own, and its commands.
#pragma once

#include "sections/crossfile.h"
#include "tools/toolcommands.h"

extern ToolRecord CrossForm;

namespace frmCross
{
void LabelBoxes(); // Sets the labels: those by design, or those that the prompts have set.

inline constexpr auto mnuNew = OfTool<CrossForm, ToolNew>;
inline constexpr auto mnuOpen = OfTool<CrossForm, ToolOpen>;
inline constexpr auto mnuSave = OfTool<CrossForm, ToolSave>;
inline constexpr auto mnuSaveAs = OfTool<CrossForm, ToolSaveAs>;
inline constexpr auto mnuPreview = OfTool<CrossForm, ToolPreview>;
inline constexpr auto mnuBatchDraw = OfTool<CrossForm, ToolBatchDraw>;
inline constexpr auto mnuPrint = OfTool<CrossForm, ToolPrint>;
inline constexpr auto mnuInsertRow = OfTool<CrossForm, ToolInsertRow>;
inline constexpr auto mnuDeleteRow = OfTool<CrossForm, ToolDeleteRow>;
inline constexpr auto mnuVeskLog = FromTool<CrossForm, Tool::Log>;
inline constexpr auto mnuVeskFence = FromTool<CrossForm, Tool::Fence>;
inline constexpr auto mnuVeskGIS = FromTool<CrossForm, Tool::GIS>;
inline constexpr auto mnuVeskSoil = FromTool<CrossForm, Tool::Soil>;
inline constexpr auto mnuExit = OfTool<CrossForm, ToolExit>;
} // namespace frmCross
