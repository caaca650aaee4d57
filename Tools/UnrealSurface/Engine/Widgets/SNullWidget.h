#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SNullWidget.h (module SlateCore): the shared empty widget.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SNullWidget

#include "Widgets/SWidget.h"

class SNullWidget
{
public:
    static TSharedRef<SWidget> NullWidget;
};
