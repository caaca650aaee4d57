#include "Host/Panel/OrvPanelWindows.h"

#include "Core/Json/OrvJsonWriter.h"
#include "Host/Panel/OrvPanelPage.h"

namespace OrvWebBridge
{
    void FOrvPanelWindows::LaunchUrl(std::string_view Url)
    {
        // The page chose this text: no control character reaches the user's terminal.
        std::string Shown(Url);
        for (char& Char : Shown)
        {
            const auto Code = static_cast<unsigned char>(Char);
            Char = Code < 0x20 || Code == 0x7F ? '?' : Char;
        }
        Print("Orv Catalog: open in your browser: " + Shown + "\n");
    }

    FOrvPopupHandle FOrvPanelWindows::OpenPopup(std::string_view Title, std::string_view Url,
                                                std::function<void(const std::string&)> OnUrlChanged)
    {
        std::string Message;
        FOrvJsonWriter Writer(Message, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.Integer("id", static_cast<std::int64_t>(LastPopupId + 1));
        Writer.String("url", Url);
        Writer.String("title", Title);
        Writer.EndObject();
        if (!Page.Send("popup-open", Message))
        {
            return {};
        }
        OpenPopups[++LastPopupId] = std::move(OnUrlChanged);
        return {LastPopupId};
    }

    void FOrvPanelWindows::ClosePopup(FOrvPopupHandle Popup)
    {
        if (OpenPopups.erase(Popup.Value) > 0)
        {
            Page.Send("popup-close", std::to_string(Popup.Value));
        }
    }

    void FOrvPanelWindows::OnPopupUrl(std::uint64_t PopupId, const std::string& Url)
    {
        const auto Found = OpenPopups.find(PopupId);
        if (Found == OpenPopups.end())
        {
            return;
        }
        // Copied: the handler may close the popup, which forgets it.
        const std::function<void(const std::string&)> OnUrlChanged = Found->second;
        OnUrlChanged(Url);
    }
} // namespace OrvWebBridge
