#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/Images/SImage.h (module SlateCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SImage

#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SImage : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SImage) {}
    SLATE_ATTRIBUTE(const FSlateBrush*, Image)
    SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
