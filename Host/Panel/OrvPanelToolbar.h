#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvPanelServer;
    class FOrvServeSmartPanel;

    /**
     * @brief The "Orv Catalog" tab's toolbar row and input pre-processor, as the host's panel page has them:
     * a script that puts the toolbar above the site and sends every key press, and the routes it talks to.
     * Ticking "Auto-Detect" is the console's "autodetect on"; "Copy URL" copies the panel's URL; a key press
     * goes through the same key test as the editor's, so Alt+R typed in the page runs the Alt+R action.
     */
    class FOrvPanelToolbar
    {
    public:
        /** Binds its routes on the started Server and adds its script to every page's. */
        FOrvPanelToolbar(FOrvPanelServer& InServer, FOrvServeSmartPanel& InSmartPanel);

        /** The script every page gets, with the toolbar's texts filled in. */
        static std::string MakeScript();

    private:
        std::unique_ptr<FOrvHttpResponse> SetAutoDetect(const FOrvHttpRequest& Request);
        std::unique_ptr<FOrvHttpResponse> KeyDown(const FOrvHttpRequest& Request);

        FOrvPanelServer& Server;
        FOrvServeSmartPanel& SmartPanel;
    };
} // namespace OrvWebBridge
