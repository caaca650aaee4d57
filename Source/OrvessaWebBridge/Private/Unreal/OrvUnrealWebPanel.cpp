#include "Unreal/OrvUnrealWebPanel.h"

#include "Unreal/OrvUnrealConversions.h"

#include "SWebBrowser.h"

namespace OrvWebBridge
{
    void FOrvUnrealWebPanel::LoadUrl(std::string_view Url)
    {
        if (Browser.IsValid())
        {
            Browser->LoadURL(FOrvUnrealConversions::ToFString(Url));
        }
    }

    void FOrvUnrealWebPanel::ExecuteJavascript(std::string_view Script)
    {
        if (Browser.IsValid())
        {
            Browser->ExecuteJavascript(FOrvUnrealConversions::ToFString(Script));
        }
    }

    std::string FOrvUnrealWebPanel::GetUrl() const
    {
        return Browser.IsValid() ? FOrvUnrealConversions::ToUtf8(Browser->GetUrl()) : std::string();
    }
} // namespace OrvWebBridge
