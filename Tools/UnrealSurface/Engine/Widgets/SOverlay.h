#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SOverlay.h (module SlateCore): children drawn on top of each
// other, later slots above earlier ones. Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SOverlay

#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SOverlay : public SCompoundWidget
{
public:
    class FOverlaySlot : public TSlotBase<FOverlaySlot>
    {
        SLATE_SLOT_BEGIN_ARGS(FOverlaySlot, TSlotBase<FOverlaySlot>)
        WidgetArgsType& HAlign(EHorizontalAlignment InHAlignment);
        WidgetArgsType& VAlign(EVerticalAlignment InVAlignment);
        SLATE_SLOT_END_ARGS()
    };
    static FOverlaySlot::FSlotArguments Slot();

    SLATE_BEGIN_ARGS(SOverlay) {}
    SLATE_SLOT_ARGUMENT(FOverlaySlot, Slots)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
