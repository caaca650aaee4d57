#pragma once

#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief Where the keyboard focus is in the editor's widgets (FSlateApplication). Game thread. */
    class IOrvWidgetFocus
    {
    public:
        virtual ~IOrvWidgetFocus() = default;

        /** The type names (SWidget::GetTypeAsString) of the keyboard-focused widget and then of each parent
         *  up to the root (GetParentWidget); empty when no widget has keyboard focus. */
        virtual std::vector<std::string> GetFocusedWidgetTypes() const = 0;
    };
} // namespace OrvWebBridge
