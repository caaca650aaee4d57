#pragma once

// Engine: Runtime/SlateCore/Public/Styling/ISlateStyle.h (module SlateCore). A style answers a missing name
// with its default brush (the missing-image pattern) and a log line, never null.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/ISlateStyle

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

class ISlateStyle
{
public:
    virtual ~ISlateStyle();

    virtual const FName& GetStyleSetName() const = 0;
    virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
                                        const ISlateStyle* RequestingStyle = nullptr) const = 0;

    /** A widget style (FButtonStyle, ...) registered under PropertyName. */
    template <typename WidgetStyleType>
    const WidgetStyleType& GetWidgetStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
                                          const ISlateStyle* RequestingStyle = nullptr) const;
};
