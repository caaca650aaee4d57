#include "Core/Module/OrvMissingAccountCatalogApi.h"

#include "Core/Common/OrvLogging.h"

namespace OrvWebBridge
{
    void FOrvMissingAccountCatalogApi::Post(std::string_view, std::string, FOrvApiCallback OnComplete)
    {
        WarnOnce();
        if (OnComplete)
        {
            GameThread.Post([OnComplete = std::move(OnComplete)]() { OnComplete(false, nullptr); });
        }
    }

    void FOrvMissingAccountCatalogApi::SetCookie(const FOrvCookie&)
    {
        WarnOnce();
    }

    void FOrvMissingAccountCatalogApi::WarnOnce()
    {
        if (bWarned)
        {
            return;
        }
        bWarned = true;
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                "OrvessaWebBridge: the ORVESSA account module (OrvCore) is not installed; catalogue data, "
                "sign-in and downloads are unavailable. The AI endpoint, the tabs and the menus work "
                "without it.");
    }
} // namespace OrvWebBridge
