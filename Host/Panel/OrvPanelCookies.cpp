#include "Host/Panel/OrvPanelCookies.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Panel/OrvPanelPage.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace OrvWebBridge
{
    namespace
    {
        bool IsCookieNameChar(unsigned char Char)
        {
            constexpr std::string_view Separators = "()<>@,;:\\\"/[]?={} \t";
            return Char > 0x20 && Char < 0x7F &&
                   Separators.find(static_cast<char>(Char)) == std::string_view::npos;
        }

        bool IsCookieValueChar(unsigned char Char)
        {
            return Char == 0x21 || (Char >= 0x23 && Char <= 0x2B) || (Char >= 0x2D && Char <= 0x3A) ||
                   (Char >= 0x3C && Char <= 0x5B) || (Char >= 0x5D && Char <= 0x7E);
        }

        bool IsAttributeChar(unsigned char Char)
        {
            return Char >= 0x20 && Char < 0x7F && Char != ';';
        }

        template <typename FPredicate> bool AllOf(std::string_view Text, FPredicate Predicate)
        {
            return std::all_of(Text.begin(), Text.end(),
                               [&](char Char) { return Predicate(static_cast<unsigned char>(Char)); });
        }

        /** Whether a browser takes the cookie as it is (and a header carrying it stays one header). */
        bool IsAcceptable(const FOrvBrowserCookie& Cookie)
        {
            return !Cookie.Name.empty() && AllOf(Cookie.Name, IsCookieNameChar) &&
                   AllOf(Cookie.Value, IsCookieValueChar) && AllOf(Cookie.Domain, IsAttributeChar) &&
                   AllOf(Cookie.Path, IsAttributeChar);
        }

        std::string Attributes(const FOrvBrowserCookie& Cookie)
        {
            std::string Text = "; Path=" + (Cookie.Path.empty() ? std::string("/") : Cookie.Path);
            if (!Cookie.Domain.empty())
            {
                Text += "; Domain=" + Cookie.Domain;
            }
            return Text;
        }

        std::vector<std::string> CookieNames(std::string_view Header)
        {
            std::vector<std::string> Names;
            while (!Header.empty())
            {
                const std::size_t End = std::min(Header.find(';'), Header.size());
                const std::string_view Pair = FOrvStrings::Trim(Header.substr(0, End));
                const std::string_view Name = FOrvStrings::Trim(Pair.substr(0, Pair.find('=')));
                if (!Name.empty())
                {
                    Names.emplace_back(Name);
                }
                Header.remove_prefix(std::min(End + 1, Header.size()));
            }
            return Names;
        }
    } // namespace

    void FOrvPanelCookies::SetCookie(std::string_view, const FOrvBrowserCookie& Cookie,
                                     std::function<void(bool)> OnDone)
    {
        Pending.push_back({false, Cookie, std::move(OnDone), {}});
        Page.Send("cookies", "");
    }

    void FOrvPanelCookies::DeleteAllCookies(std::function<void(int)> OnDone)
    {
        Pending.push_back({true, {}, {}, std::move(OnDone)});
        Page.Send("cookies", "");
    }

    std::vector<std::string> FOrvPanelCookies::TakeSetCookieHeaders(std::string_view RequestCookies)
    {
        // The browser's cookies as the changes leave them, by name: deleted (empty), set (the cookie) or
        // carried by the request and untouched (a cookie without a name).
        std::vector<std::pair<std::string, std::optional<FOrvBrowserCookie>>> Final;
        for (std::string& Name : CookieNames(RequestCookies))
        {
            Final.emplace_back(std::move(Name), FOrvBrowserCookie{});
        }
        std::vector<std::function<void()>> Completions;
        for (FChange& Change : std::exchange(Pending, {}))
        {
            if (Change.bDeleteAll)
            {
                int Deleted = 0;
                for (auto& [Name, Cookie] : Final)
                {
                    Deleted += Cookie ? 1 : 0;
                    Cookie.reset();
                }
                Completions.push_back([OnDone = std::move(Change.OnDeleted), Deleted] { OnDone(Deleted); });
                continue;
            }
            const bool bAcceptable = IsAcceptable(Change.Cookie);
            if (bAcceptable)
            {
                const auto Same =
                    std::find_if(Final.begin(), Final.end(),
                                 [&](const auto& Entry) { return Entry.first == Change.Cookie.Name; });
                if (Same == Final.end())
                {
                    Final.emplace_back(Change.Cookie.Name, Change.Cookie);
                }
                else
                {
                    Same->second = Change.Cookie;
                }
            }
            Completions.push_back([OnDone = std::move(Change.OnSet), bAcceptable] { OnDone(bAcceptable); });
        }

        std::vector<std::string> Headers;
        for (const auto& [Name, Cookie] : Final)
        {
            if (!Cookie)
            {
                Headers.push_back(Name + "=; Path=/; Max-Age=0");
            }
            else if (!Cookie->Name.empty()) // carried by the request and left alone: nothing to send
            {
                Headers.push_back(Name + "=" + Cookie->Value + Attributes(*Cookie) +
                                  (Cookie->bSecure ? "; Secure" : "") +
                                  (Cookie->bHttpOnly ? "; HttpOnly" : "") + "; SameSite=Lax");
            }
        }
        for (const auto& Complete : Completions)
        {
            Complete();
        }
        return Headers;
    }
} // namespace OrvWebBridge
