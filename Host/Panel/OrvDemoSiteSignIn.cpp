#include "Host/Panel/OrvDemoSiteSignIn.h"

#include "Host/Panel/OrvMemoryCatalogAccount.h"
#include "Host/Panel/OrvUrlEncoding.h"

#include <cstdio>

#include <random>
#include <string>

namespace OrvWebBridge
{
    namespace
    {
        std::string NewSessionToken()
        {
            std::random_device Random;
            std::string Token = "demo-";
            for (int Index = 0; Index < 4; ++Index)
            {
                char Part[9];
                std::snprintf(Part, sizeof(Part), "%08x", Random());
                Token += Part;
            }
            return Token;
        }
    } // namespace

    std::unique_ptr<FOrvHttpResponse> FOrvDemoSiteSignIn::Answer(std::string_view Body)
    {
        auto Response = std::make_unique<FOrvHttpResponse>();
        Response->Code = 303;
        Response->ContentType = "text/plain; charset=utf-8";
        const bool bSignedIn =
            FOrvUrlEncoding::FindField(Body, "username") == FOrvMemoryCatalogAccount::DemoUser &&
            FOrvUrlEncoding::FindField(Body, "password") == FOrvMemoryCatalogAccount::DemoPassword;
        Response->Headers.emplace_back("Location",
                                       bSignedIn ? "/oauth-device-success" : "/oauth/sign-in?error=1");
        if (bSignedIn)
        {
            Response->Headers.emplace_back("Set-Cookie",
                                           "orvsite=" + NewSessionToken() + "; Path=/; SameSite=Lax");
        }
        return Response;
    }
} // namespace OrvWebBridge
