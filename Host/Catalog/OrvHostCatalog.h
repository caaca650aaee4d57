#pragma once

#include "Core/Ports/IOrvCatalogApi.h"
#include "Host/OrvHostCommands.h"

#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;

    /** @brief The catalogue the host's commands talk to, and what it is for messages. */
    struct FOrvHostCatalog
    {
        std::unique_ptr<IOrvCatalogApi> Api; ///< null when the source could not be opened
        std::string Description; ///< "offline catalogue room.json (12 products)", "catalogue service at URL"
        std::string Error;       ///< why Api is null

        /**
         * --catalog FILE: that offline file; --api URL: the catalogue service over HTTP; neither: the demo
         * room's built-in offline catalogue. Answers arrive on Loop's game thread.
         */
        static FOrvHostCatalog Open(const FOrvCatalogSourceOptions& Options, FOrvHostEventLoop& Loop);
    };
} // namespace OrvWebBridge
