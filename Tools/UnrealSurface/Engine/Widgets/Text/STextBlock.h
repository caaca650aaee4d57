#pragma once

// Engine: Runtime/Slate/Public/Widgets/Text/STextBlock.h (module Slate).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/STextBlock

#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class STextBlock : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(STextBlock) {}
    SLATE_ATTRIBUTE(FText, Text)
    SLATE_ATTRIBUTE(FSlateFontInfo, Font)
    SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
