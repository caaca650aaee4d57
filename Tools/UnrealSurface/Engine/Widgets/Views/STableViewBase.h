#pragma once

// Engine: Runtime/Slate/Public/Widgets/Views/STableViewBase.h (module Slate): the view that owns the rows.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/STableViewBase

#include "Widgets/SCompoundWidget.h"

class STableViewBase : public SCompoundWidget
{
};
