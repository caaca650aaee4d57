#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SBoxPanel.h (module SlateCore): children in a row or a column,
// each in a slot that sizes to its content (AutoWidth/AutoHeight) or shares what is left (Fill*).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SHorizontalBox
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SVerticalBox

#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// What the two boxes' slots share: padding and alignment.
#define ORV_SURFACE_BOX_SLOT_SETTERS                                                                         \
    WidgetArgsType& Padding(TAttribute<FMargin> InPadding);                                                  \
    WidgetArgsType& Padding(float Uniform);                                                                  \
    WidgetArgsType& Padding(float Horizontal, float Vertical);                                               \
    WidgetArgsType& Padding(float Left, float Top, float Right, float Bottom);                               \
    WidgetArgsType& HAlign(EHorizontalAlignment InHAlignment);                                               \
    WidgetArgsType& VAlign(EVerticalAlignment InVAlignment);

class SHorizontalBox : public SCompoundWidget
{
public:
    class FSlot : public TSlotBase<FSlot>
    {
        SLATE_SLOT_BEGIN_ARGS(FSlot, TSlotBase<FSlot>)
        ORV_SURFACE_BOX_SLOT_SETTERS
        WidgetArgsType& AutoWidth();
        WidgetArgsType& FillWidth(TAttribute<float> InStretchCoefficient);
        SLATE_SLOT_END_ARGS()
    };
    static FSlot::FSlotArguments Slot();

    SLATE_BEGIN_ARGS(SHorizontalBox) {}
    SLATE_SLOT_ARGUMENT(FSlot, Slots)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};

class SVerticalBox : public SCompoundWidget
{
public:
    class FSlot : public TSlotBase<FSlot>
    {
        SLATE_SLOT_BEGIN_ARGS(FSlot, TSlotBase<FSlot>)
        ORV_SURFACE_BOX_SLOT_SETTERS
        WidgetArgsType& AutoHeight();
        WidgetArgsType& FillHeight(TAttribute<float> InStretchCoefficient);
        SLATE_SLOT_END_ARGS()
    };
    static FSlot::FSlotArguments Slot();

    SLATE_BEGIN_ARGS(SVerticalBox) {}
    SLATE_SLOT_ARGUMENT(FSlot, Slots)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};

#undef ORV_SURFACE_BOX_SLOT_SETTERS
