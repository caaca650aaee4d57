#include "Host/Panel/OrvPanelPage.h"

#include <algorithm>

namespace OrvWebBridge
{
    void FOrvPanelPage::Connect(std::shared_ptr<IOrvHttpEventStream> Stream, std::string PageUrl)
    {
        Pages.push_back({std::move(Stream), std::move(PageUrl)});
    }

    const FOrvPanelPage::FConnection* FOrvPanelPage::Current() const
    {
        std::erase_if(Pages, [](const FConnection& Page) { return !Page.Stream->IsOpen(); });
        return Pages.empty() ? nullptr : &Pages.back();
    }

    bool FOrvPanelPage::Send(std::string_view Event, std::string_view Data)
    {
        const FConnection* Page = Current();
        if (!Page)
        {
            return false;
        }
        // An event stream ends a line at CR as well as LF; in script either is a line end, so the page
        // runs the same program.
        std::string Lines(Data);
        std::replace(Lines.begin(), Lines.end(), '\r', '\n');
        return Page->Stream->SendEvent(Event, Lines);
    }

    void FOrvPanelPage::DisconnectAll()
    {
        std::vector<FConnection> Closing = std::move(Pages);
        Pages.clear();
        for (const FConnection& Page : Closing)
        {
            Page.Stream->Close();
        }
    }

    bool FOrvPanelPage::IsOpen() const
    {
        return Current() != nullptr;
    }

    void FOrvPanelPage::LoadUrl(std::string_view Url)
    {
        Send("navigate", Url);
    }

    void FOrvPanelPage::ExecuteJavascript(std::string_view Script)
    {
        Send("script", Script);
    }

    std::string FOrvPanelPage::GetUrl() const
    {
        const FConnection* Page = Current();
        return Page ? Page->Url : std::string();
    }
} // namespace OrvWebBridge
