#pragma once

// Engine: Runtime/SlateCore/Public/Styling/AppStyle.h (module SlateCore). The editor's style (brushes such as
// "Icons.Refresh", "ToolPanel.GroupBorder"); a name it lacks draws the missing-image pattern.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FAppStyle

#include "CoreMinimal.h"
#include "Styling/ISlateStyle.h"

class FAppStyle
{
public:
    static const ISlateStyle& Get();
    static const FSlateBrush* GetBrush(const FName& InPropertyName, const ANSICHAR* Specifier = nullptr);
};
