#include "Host/Runtime/OrvHttpUrl.h"

#include "Core/Common/OrvStrings.h"

#include <algorithm>
#include <charconv>

namespace OrvWebBridge
{
    std::optional<FOrvHttpUrl> FOrvHttpUrl::Parse(std::string_view Text, std::string& Error)
    {
        Text = FOrvStrings::Trim(Text);
        const std::size_t SchemeEnd = Text.find("://");
        if (SchemeEnd == std::string_view::npos)
        {
            Error = "\"" + std::string(Text) + "\" is not a URL; expected http://HOST[:PORT][/PATH]";
            return std::nullopt;
        }
        const std::string_view Scheme = Text.substr(0, SchemeEnd);
        if (FOrvStrings::EqualsIgnoreCase(Scheme, "https"))
        {
            Error = "https is not supported by the host's catalogue client; use an http:// URL "
                    "(for example a local proxy)";
            return std::nullopt;
        }
        if (!FOrvStrings::EqualsIgnoreCase(Scheme, "http"))
        {
            Error = "unsupported URL scheme \"" + std::string(Scheme) + "\"; use http://";
            return std::nullopt;
        }
        std::string_view Rest = Text.substr(SchemeEnd + 3);
        if (Rest.find_first_of("?#") != std::string_view::npos)
        {
            Error = "the base URL must not have a query or fragment";
            return std::nullopt;
        }
        const std::size_t PathStart = Rest.find('/');
        const std::string_view Authority = Rest.substr(0, PathStart);
        std::string_view Path =
            PathStart == std::string_view::npos ? std::string_view() : Rest.substr(PathStart);
        if (Authority.find('@') != std::string_view::npos)
        {
            Error = "the base URL must not carry a user name or password";
            return std::nullopt;
        }

        FOrvHttpUrl Url;
        std::string_view HostPart = Authority;
        std::string_view PortPart;
        if (!Authority.empty() && Authority.front() == '[')
        {
            const std::size_t Close = Authority.find(']');
            if (Close == std::string_view::npos)
            {
                Error = "unclosed '[' in the host of the base URL";
                return std::nullopt;
            }
            HostPart = Authority.substr(1, Close - 1);
            const std::string_view After = Authority.substr(Close + 1);
            if (!After.empty() && After.front() != ':')
            {
                Error = "unexpected text after the host of the base URL";
                return std::nullopt;
            }
            PortPart = After.empty() ? std::string_view() : After.substr(1);
            if (After == ":")
            {
                PortPart = ":";
            }
        }
        else if (const std::size_t Colon = Authority.rfind(':'); Colon != std::string_view::npos)
        {
            HostPart = Authority.substr(0, Colon);
            PortPart = Authority.substr(Colon + 1);
            if (PortPart.empty())
            {
                PortPart = ":";
            }
        }
        if (HostPart.empty())
        {
            Error = "the base URL has no host";
            return std::nullopt;
        }
        if (!PortPart.empty())
        {
            unsigned Port = 0;
            const auto [End, Code] =
                std::from_chars(PortPart.data(), PortPart.data() + PortPart.size(), Port);
            if (Code != std::errc() || End != PortPart.data() + PortPart.size() || Port == 0 || Port > 65535)
            {
                Error = "the port of the base URL must be a number from 1 to 65535";
                return std::nullopt;
            }
            Url.Port = static_cast<std::uint16_t>(Port);
        }
        Url.Host = std::string(HostPart);
        while (!Path.empty() && Path.back() == '/')
        {
            Path.remove_suffix(1);
        }
        Url.PathPrefix = std::string(Path);
        return Url;
    }

    std::string FOrvHttpUrl::JoinPath(std::string_view Path) const
    {
        while (!Path.empty() && Path.front() == '/')
        {
            Path.remove_prefix(1);
        }
        return PathPrefix + "/" + std::string(Path);
    }

    std::string FOrvHttpUrl::HostHeader() const
    {
        const bool bIpv6 = Host.find(':') != std::string::npos;
        std::string Value = bIpv6 ? "[" + Host + "]" : Host;
        if (Port != 80)
        {
            Value += ":" + std::to_string(Port);
        }
        return Value;
    }

    namespace
    {
        bool DomainMatches(std::string_view CookieDomain, std::string_view Host)
        {
            while (!CookieDomain.empty() && CookieDomain.front() == '.')
            {
                CookieDomain.remove_prefix(1);
            }
            if (FOrvStrings::EqualsIgnoreCase(CookieDomain, Host))
            {
                return true;
            }
            return Host.size() > CookieDomain.size() && Host[Host.size() - CookieDomain.size() - 1] == '.' &&
                   FOrvStrings::EndsWithIgnoreCase(Host, CookieDomain);
        }

        bool PathMatches(std::string_view CookiePath, std::string_view Path)
        {
            if (CookiePath.empty() || CookiePath == "/")
            {
                return true;
            }
            if (Path.substr(0, CookiePath.size()) != CookiePath)
            {
                return false;
            }
            return Path.size() == CookiePath.size() || CookiePath.back() == '/' ||
                   Path[CookiePath.size()] == '/';
        }
    } // namespace

    void FOrvCookieJar::ApplySetCookie(std::string_view HeaderValue, std::string_view RequestHost)
    {
        FOrvCookie Cookie;
        Cookie.Domain = std::string(RequestHost);
        bool bRemove = false;
        bool bFirst = true;
        while (!HeaderValue.empty())
        {
            const std::size_t Semicolon = HeaderValue.find(';');
            const std::string_view Part = FOrvStrings::Trim(HeaderValue.substr(0, Semicolon));
            HeaderValue =
                Semicolon == std::string_view::npos ? std::string_view() : HeaderValue.substr(Semicolon + 1);
            const std::size_t Equals = Part.find('=');
            const std::string_view Key = FOrvStrings::Trim(Part.substr(0, Equals));
            const std::string_view Value = Equals == std::string_view::npos
                                               ? std::string_view()
                                               : FOrvStrings::Trim(Part.substr(Equals + 1));
            if (bFirst)
            {
                bFirst = false;
                if (Equals == std::string_view::npos || Key.empty())
                {
                    return;
                }
                Cookie.Name = std::string(Key);
                Cookie.Value = std::string(Value);
                continue;
            }
            if (FOrvStrings::EqualsIgnoreCase(Key, "Domain") && !Value.empty())
            {
                Cookie.Domain = std::string(Value.front() == '.' ? Value.substr(1) : Value);
            }
            else if (FOrvStrings::EqualsIgnoreCase(Key, "Path") && !Value.empty() && Value.front() == '/')
            {
                Cookie.Path = std::string(Value);
            }
            else if (FOrvStrings::EqualsIgnoreCase(Key, "Max-Age"))
            {
                bRemove = !Value.empty() && (Value.front() == '-' || Value == "0");
            }
        }
        if (bFirst)
        {
            return;
        }
        if (bRemove || Cookie.Value.empty())
        {
            std::erase_if(Cookies, [&](const FOrvCookie& Kept) { return Kept.Name == Cookie.Name; });
            return;
        }
        Set(Cookie);
    }

    void FOrvCookieJar::Set(const FOrvCookie& Cookie)
    {
        // Cookies go back out in one Cookie header: one that could break or forge header lines, or pass the
        // bounds, is not kept.
        const auto IsUnsafe = [](char Character)
        { return static_cast<unsigned char>(Character) < 0x20 || Character == ';' || Character == 0x7F; };
        if (Cookie.Name.empty() || Cookie.Name.size() + Cookie.Value.size() > MaxCookieBytes ||
            std::any_of(Cookie.Name.begin(), Cookie.Name.end(), IsUnsafe) ||
            std::any_of(Cookie.Value.begin(), Cookie.Value.end(), IsUnsafe))
        {
            return;
        }
        const auto Found = std::find_if(Cookies.begin(), Cookies.end(),
                                        [&](const FOrvCookie& Kept) { return Kept.Name == Cookie.Name; });
        if (Found != Cookies.end())
        {
            *Found = Cookie;
        }
        else
        {
            Cookies.push_back(Cookie);
        }
        // Past the total, the oldest cookies go first, as browsers drop theirs.
        const auto Size = [](const FOrvCookie& Kept) { return Kept.Name.size() + Kept.Value.size() + 2; };
        std::size_t Total = 0;
        for (const FOrvCookie& Kept : Cookies)
        {
            Total += Size(Kept);
        }
        while (Total > MaxJarBytes)
        {
            Total -= Size(Cookies.front());
            Cookies.erase(Cookies.begin());
        }
    }

    std::string FOrvCookieJar::CookieHeader(std::string_view Host, std::string_view Path) const
    {
        std::string Header;
        for (const FOrvCookie& Cookie : Cookies)
        {
            if ((Cookie.Domain.empty() || DomainMatches(Cookie.Domain, Host)) &&
                PathMatches(Cookie.Path, Path))
            {
                Header += (Header.empty() ? "" : "; ") + Cookie.Name + "=" + Cookie.Value;
            }
        }
        return Header;
    }
} // namespace OrvWebBridge
