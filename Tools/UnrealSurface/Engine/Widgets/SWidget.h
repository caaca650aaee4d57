#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SWidget.h (module SlateCore). Widgets live in shared pointers.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SWidget

#include "CoreMinimal.h"

class SWidget : public TSharedFromThis<SWidget>
{
public:
    virtual ~SWidget();
};
