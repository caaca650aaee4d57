#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SWidget.h (module SlateCore). Widgets live in shared pointers.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SWidget

#include "CoreMinimal.h"

class SWidget : public TSharedFromThis<SWidget>
{
public:
    virtual ~SWidget();

    /** The widget this one is a child of; null at the root. Docs:
     *  https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/SlateCore/Widgets/SWidget/GetParentWidget?application_version=5.4
     */
    TSharedPtr<SWidget> GetParentWidget() const;

    /** The widget's type name, e.g. "SAssetView". [unconf: from the team's notes sheet; no API page found] */
    FString GetTypeAsString() const;
};
