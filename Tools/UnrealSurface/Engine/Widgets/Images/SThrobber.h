#pragma once

// Engine: Runtime/Slate/Public/Widgets/Images/SThrobber.h (module Slate): a spinning busy indicator.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SCircularThrobber (by URL
//   scheme)

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SCircularThrobber : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SCircularThrobber) {}
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
