#pragma once

// Engine: Runtime/Slate/Public/Widgets/Layout/SBox.h (module Slate): one child, optionally sized.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SBox

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBox : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SBox) {}
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
