#pragma once

#include "Core/Ports/IOrvCatalogApi.h"
#include "Core/Ports/IOrvGameThread.h"
#include "Core/Ports/IOrvLog.h"

namespace OrvWebBridge
{
    /**
     * @brief The catalogue service as the editor has it without the maker's account module: every request
     * fails (later, as real ones complete) and the cookie jar stays empty. The first use logs one Warning
     * that says why, so the outliner and the panel keep working without catalogue data. Game thread.
     */
    class FOrvMissingAccountCatalogApi final : public IOrvCatalogApi
    {
    public:
        FOrvMissingAccountCatalogApi(IOrvGameThread& InGameThread, IOrvLog& InLog)
            : GameThread(InGameThread), Log(InLog)
        {
        }

        /** Always this stand-in, as the editor's client is found while the maker's module has made it. */
        IOrvCatalogApi* Find() { return this; }

        void Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete) override;
        std::vector<FOrvCookie> GetCookies() const override { return {}; }
        void SetCookie(const FOrvCookie& Cookie) override;

    private:
        void WarnOnce();

        IOrvGameThread& GameThread;
        IOrvLog& Log;
        bool bWarned = false;
    };
} // namespace OrvWebBridge
