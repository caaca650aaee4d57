#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvWidgetFocus.h"

namespace OrvWebBridge
{
    /** @brief IOrvWidgetFocus over FSlateApplication: the keyboard-focused widget and its parents. */
    class FOrvUnrealWidgetFocus final : public IOrvWidgetFocus
    {
    public:
        virtual std::vector<std::string> GetFocusedWidgetTypes() const override;
    };
} // namespace OrvWebBridge
