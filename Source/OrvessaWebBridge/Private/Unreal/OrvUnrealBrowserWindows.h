#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvBrowserWindows.h"

#include <functional>
#include <string>

class SWindow;

namespace OrvWebBridge
{
    /**
     * @brief IOrvBrowserWindows in the editor: the system's default browser (FPlatformProcess::LaunchURL) and
     * sign-in popups, each an SWindow holding its own SWebBrowser that reports every URL it shows. Popups
     * still open when this goes are closed, and none reports again. Game thread.
     */
    class FOrvUnrealBrowserWindows final : public IOrvBrowserWindows
    {
    public:
        FOrvUnrealBrowserWindows() = default;
        virtual ~FOrvUnrealBrowserWindows() override;
        FOrvUnrealBrowserWindows(const FOrvUnrealBrowserWindows&) = delete;
        FOrvUnrealBrowserWindows& operator=(const FOrvUnrealBrowserWindows&) = delete;

        virtual void LaunchUrl(std::string_view Url) override;
        virtual FOrvPopupHandle OpenPopup(std::string_view Title, std::string_view Url,
                                          std::function<void(const std::string& Url)> OnUrlChanged) override;
        virtual void ClosePopup(FOrvPopupHandle Popup) override;

    private:
        /** Who hears a popup's URLs; shared with the popup's browser, and emptied when the popup is closed.
         */
        struct FOrvPopupListener
        {
            std::function<void(const std::string& Url)> OnUrlChanged;
        };

        struct FOrvPopup
        {
            std::uint64_t Handle = 0;
            TWeakPtr<SWindow> Window;
            TSharedPtr<FOrvPopupListener> Listener;
        };

        TArray<FOrvPopup> Popups;
        std::uint64_t LastHandle = 0;
    };
} // namespace OrvWebBridge
