#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <memory>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief The demo site's own sign-in (the popup's form): the demo credentials lead to
     * /oauth-device-success with the site's session in the "orvsite" cookie, which the site's page reads
     * and hands to the editor; anything else returns to the form.
     */
    struct FOrvDemoSiteSignIn
    {
        /** The answer to the form's POST (application/x-www-form-urlencoded Body). */
        static std::unique_ptr<FOrvHttpResponse> Answer(std::string_view Body);
    };
} // namespace OrvWebBridge
