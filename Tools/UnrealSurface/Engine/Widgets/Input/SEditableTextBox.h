#pragma once

// Engine: Runtime/Slate/Public/Widgets/Input/SEditableTextBox.h (module Slate).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SEditableTextBox

#include "Framework/SlateDelegates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SEditableTextBox : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SEditableTextBox) {}
    SLATE_ATTRIBUTE(FText, Text)
    SLATE_ATTRIBUTE(float, MinDesiredWidth)
    SLATE_EVENT(FOnTextChanged, OnTextChanged)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
