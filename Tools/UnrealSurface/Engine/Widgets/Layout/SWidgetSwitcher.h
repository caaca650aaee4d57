#pragma once

// Engine: Runtime/Slate/Public/Widgets/Layout/SWidgetSwitcher.h (module Slate): shows the slot at
// WidgetIndex; bound to a getter, it follows the value each frame.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SWidgetSwitcher

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SWidgetSwitcher : public SCompoundWidget
{
public:
    class FSlot : public TSlotBase<FSlot>
    {
        SLATE_SLOT_BEGIN_ARGS(FSlot, TSlotBase<FSlot>)
        SLATE_SLOT_END_ARGS()
    };
    static FSlot::FSlotArguments Slot();

    SLATE_BEGIN_ARGS(SWidgetSwitcher) {}
    SLATE_ATTRIBUTE(int32, WidgetIndex)
    SLATE_SLOT_ARGUMENT(FSlot, Slots)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
