#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvWebPanel.h"

class SWebBrowser;

namespace OrvWebBridge
{
    /** @brief IOrvWebPanel over the "Orv Catalog" tab's SWebBrowser, held from the tab's spawn to its close.
     */
    class FOrvUnrealWebPanel final : public IOrvWebPanel
    {
    public:
        /** The tab's browser; null when the tab closes. */
        void SetBrowser(TSharedPtr<SWebBrowser> InBrowser) { Browser = MoveTemp(InBrowser); }
        const TSharedPtr<SWebBrowser>& GetBrowser() const { return Browser; }

        virtual bool IsOpen() const override { return Browser.IsValid(); }
        virtual void LoadUrl(std::string_view Url) override;
        virtual void ExecuteJavascript(std::string_view Script) override;
        virtual std::string GetUrl() const override;

    private:
        TSharedPtr<SWebBrowser> Browser;
    };
} // namespace OrvWebBridge
