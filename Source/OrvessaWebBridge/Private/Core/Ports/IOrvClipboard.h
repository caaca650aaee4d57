#pragma once

#include <string_view>

namespace OrvWebBridge
{
    /** @brief The system clipboard (FPlatformApplicationMisc). Game thread. */
    class IOrvClipboard
    {
    public:
        virtual ~IOrvClipboard() = default;

        /** Puts Text on the clipboard (ClipboardCopy). */
        virtual void ClipboardCopy(std::string_view Text) = 0;
    };
} // namespace OrvWebBridge
