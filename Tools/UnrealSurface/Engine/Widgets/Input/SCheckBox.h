#pragma once

// Engine: Runtime/Slate/Public/Widgets/Input/SCheckBox.h (module Slate).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SCheckBox/FArguments
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Widgets/Input/FOnCheckStateChanged?application_version=5.5

#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState)

    class SCheckBox : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SCheckBox) {}
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
    SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
