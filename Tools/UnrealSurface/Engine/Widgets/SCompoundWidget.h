#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SCompoundWidget.h (module SlateCore). One child, in ChildSlot,
// filled in Construct: ChildSlot[ SNew(...) ].
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SCompoundWidget

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

class SCompoundWidget : public SWidget
{
protected:
    struct FCompoundWidgetOneChildSlot
    {
        FCompoundWidgetOneChildSlot& operator[](const TSharedRef<SWidget>& InChild);
    };

    FCompoundWidgetOneChildSlot ChildSlot;
};
