#pragma once

#include "Core/Ports/IOrvBrowserWindows.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace OrvWebBridge
{
    class FOrvPanelPage;

    /**
     * @brief Browser windows as the host has them. The sign-in popup is a window that the panel's page
     * opens and closes when told to; the popup's page reports each URL it shows. The system browser is
     * the user: the URL is printed on the console for them to open. Event loop only.
     */
    class FOrvPanelWindows : public IOrvBrowserWindows
    {
    public:
        FOrvPanelWindows(FOrvPanelPage& InPage, std::function<void(const std::string&)> InPrint)
            : Page(InPage), Print(std::move(InPrint))
        {
        }

        void LaunchUrl(std::string_view Url) override;
        FOrvPopupHandle OpenPopup(std::string_view Title, std::string_view Url,
                                  std::function<void(const std::string& Url)> OnUrlChanged) override;
        void ClosePopup(FOrvPopupHandle Popup) override;

        /** A popup's page reports the URL it shows; nothing for a popup that is not open. */
        void OnPopupUrl(std::uint64_t PopupId, const std::string& Url);

    private:
        FOrvPanelPage& Page;
        std::function<void(const std::string&)> Print;
        std::map<std::uint64_t, std::function<void(const std::string&)>> OpenPopups;
        std::uint64_t LastPopupId = 0;
    };
} // namespace OrvWebBridge
