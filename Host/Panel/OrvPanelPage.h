#pragma once

#include "Core/Ports/IOrvWebPanel.h"
#include "Host/Runtime/OrvHttpEventStream.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief The catalogue panel as the host has it: the browser page connected to the panel's event
     * stream. The newest page still connected is the panel; the panel is open while one is. Scripts and
     * navigation reach it as stream events that the injected bridge script carries out. Event loop only.
     */
    class FOrvPanelPage : public IOrvWebPanel
    {
    public:
        /** A page connected its event stream from PageUrl: from now on it is the panel. */
        void Connect(std::shared_ptr<IOrvHttpEventStream> Stream, std::string PageUrl);

        /** Sends one stream event to the panel's page; false when no page is connected. */
        bool Send(std::string_view Event, std::string_view Data);

        /** Ends every page's stream (the server stops). */
        void DisconnectAll();

        bool IsOpen() const override;
        void LoadUrl(std::string_view Url) override;
        void ExecuteJavascript(std::string_view Script) override;
        std::string GetUrl() const override;

    private:
        struct FConnection
        {
            std::shared_ptr<IOrvHttpEventStream> Stream;
            std::string Url;
        };

        /** The newest page still connected, after forgetting those that are gone; null when none. */
        const FConnection* Current() const;

        mutable std::vector<FConnection> Pages; ///< oldest first
    };
} // namespace OrvWebBridge
