#pragma once

// An adapter over the maker's closed core module (OrvCore). Compiled only when that module is present.
#if ORV_WITH_CLOSED_MODULES

#include "CoreMinimal.h"

#include "Core/Ports/IOrvCatalogApi.h"
#include "Core/Ports/IOrvGameThread.h"

namespace OrvWebBridge
{
    /**
     * @brief IOrvCatalogApi over the core module's UApiWrapper: JSON crosses as text, converted with the
     * engine's JSON reader and writer on one side and the core's on the other.
     */
    class FOrvUnrealCatalogApi final : public IOrvCatalogApi
    {
    public:
        explicit FOrvUnrealCatalogApi(IOrvGameThread& InGameThread) : GameThread(InGameThread) {}

        /** This client while the maker's module has made its UApiWrapper; null otherwise. */
        IOrvCatalogApi* Find();

        virtual void Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete) override;
        virtual std::vector<FOrvCookie> GetCookies() const override;
        virtual void SetCookie(const FOrvCookie& Cookie) override;

    private:
        IOrvGameThread& GameThread;
    };
} // namespace OrvWebBridge

#endif
