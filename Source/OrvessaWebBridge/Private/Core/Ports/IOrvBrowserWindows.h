#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Handle of one open popup window; zero when none. */
    struct FOrvPopupHandle
    {
        std::uint64_t Value = 0;

        bool IsValid() const { return Value != 0; }
    };

    /**
     * @brief Browser windows outside the catalogue panel: the system's default browser and the sign-in
     * popup (an SWindow holding its own SWebBrowser). Game thread.
     */
    class IOrvBrowserWindows
    {
    public:
        virtual ~IOrvBrowserWindows() = default;

        /** Opens Url in the system's default browser (FPlatformProcess::LaunchURL). */
        virtual void LaunchUrl(std::string_view Url) = 0;

        /** Opens a popup titled Title on Url; OnUrlChanged gets each URL it shows. Invalid when it cannot. */
        virtual FOrvPopupHandle OpenPopup(std::string_view Title, std::string_view Url,
                                          std::function<void(const std::string& Url)> OnUrlChanged) = 0;

        /** Closes a popup (its OnUrlChanged is never called again); nothing when it is already closed. */
        virtual void ClosePopup(FOrvPopupHandle Popup) = 0;
    };
} // namespace OrvWebBridge
