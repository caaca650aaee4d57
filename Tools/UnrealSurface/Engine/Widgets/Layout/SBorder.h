#pragma once

// Engine: Runtime/Slate/Public/Widgets/Layout/SBorder.h (module Slate): one child over a brush.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SBorder

#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBorder : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SBorder) {}
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
    SLATE_ARGUMENT(EVerticalAlignment, VAlign)
    SLATE_ATTRIBUTE(FMargin, Padding)
    SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
