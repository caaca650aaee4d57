#pragma once

// Engine: Runtime/Slate/Public/Widgets/Input/SButton.h (module Slate). ButtonStyle is a style argument:
// a style by pointer, or a style set and the style's name in it.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SButton

#include "Framework/SlateDelegates.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SButton : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SButton) {}
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_ATTRIBUTE(FText, Text)
    SLATE_EVENT(FOnClicked, OnClicked)
    WidgetArgsType& ButtonStyle(const FButtonStyle* InButtonStyle);
    WidgetArgsType& ButtonStyle(const ISlateStyle& InSlateStyle, const FName& StyleName,
                                const ANSICHAR* Specifier = nullptr);
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
