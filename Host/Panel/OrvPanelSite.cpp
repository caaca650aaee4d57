#include "Host/Panel/OrvPanelSite.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Panel/OrvPanelCatalog.h"
#include "Host/Panel/OrvUrlEncoding.h"
#include "Host/Runtime/OrvInputFile.h"

#include <filesystem>

namespace OrvWebBridge
{
    namespace
    {
        namespace fs = std::filesystem;

        constexpr std::pair<std::string_view, std::string_view> OrvContentTypes[] = {
            {".html", "text/html; charset=utf-8"},
            {".htm", "text/html; charset=utf-8"},
            {".css", "text/css; charset=utf-8"},
            {".js", "text/javascript; charset=utf-8"},
            {".mjs", "text/javascript; charset=utf-8"},
            {".json", "application/json"},
            {".map", "application/json"},
            {".svg", "image/svg+xml"},
            {".png", "image/png"},
            {".jpg", "image/jpeg"},
            {".jpeg", "image/jpeg"},
            {".gif", "image/gif"},
            {".webp", "image/webp"},
            {".ico", "image/x-icon"},
            {".woff", "font/woff"},
            {".woff2", "font/woff2"},
            {".txt", "text/plain; charset=utf-8"},
            {".wasm", "application/wasm"},
        };

        std::string_view ContentTypeOf(std::string_view FileName)
        {
            for (const auto& [Extension, Type] : OrvContentTypes)
            {
                if (FOrvStrings::EndsWithIgnoreCase(FileName, Extension))
                {
                    return Type;
                }
            }
            return "application/octet-stream";
        }

        bool ReadFile(const fs::path& File, std::string& Out)
        {
            std::string Unused;
            return FOrvInputFile::Read(File.string(), Out, Unused);
        }

        std::string_view AfterPrefix(std::string_view Path, std::string_view Prefix)
        {
            return Path.size() > Prefix.size() && Path.starts_with(Prefix) ? Path.substr(Prefix.size()) : "";
        }
    } // namespace

    std::unique_ptr<FOrvHttpResponse> FOrvPanelSite::Respond(int Code, std::string_view ContentType,
                                                             std::string Body)
    {
        auto Response = std::make_unique<FOrvHttpResponse>();
        Response->Code = Code;
        Response->ContentType = std::string(ContentType);
        Response->Body = std::move(Body);
        Response->Headers.emplace_back("Cache-Control", "no-store");
        return Response;
    }

    bool FOrvPanelSite::Check(std::string& Error) const
    {
        std::error_code Ignored;
        if (!fs::is_regular_file(fs::path(Directory) / "index.html", Ignored))
        {
            Error = "site folder " + Directory + " has no index.html";
            return false;
        }
        return true;
    }

    std::string FOrvPanelSite::InjectBridge(std::string_view Html)
    {
        const std::string Tag = "<script src=\"" + std::string(BridgeScriptPath) + "\"></script>";
        // Right after <head ...>, else after <html ...>, else after the doctype, so that the page's own
        // scripts find the bridge and the document keeps its standards mode.
        std::size_t Insert = 0;
        for (const std::string_view Opening : {"<head", "<html", "<!doctype"})
        {
            std::size_t At = 0;
            while ((At = std::string_view(Html).find('<', At)) != std::string_view::npos)
            {
                const std::string_view Rest = Html.substr(At);
                const std::size_t NameEnd = Opening.size();
                if (FOrvStrings::StartsWithIgnoreCase(Rest, Opening) &&
                    (Rest.size() == NameEnd || Rest[NameEnd] == '>' || Rest[NameEnd] == ' ' ||
                     Rest[NameEnd] == '\t' || Rest[NameEnd] == '\n' || Rest[NameEnd] == '\r'))
                {
                    break;
                }
                ++At;
            }
            if (At != std::string_view::npos)
            {
                const std::size_t Close = Html.find('>', At);
                Insert = Close == std::string_view::npos ? Html.size() : Close + 1;
                break;
            }
        }
        std::string Out;
        Out.reserve(Html.size() + Tag.size());
        Out.append(Html.substr(0, Insert)).append(Tag).append(Html.substr(Insert));
        return Out;
    }

    std::string FOrvPanelSite::Resolve(std::string_view Path) const
    {
        const std::string Decoded = FOrvUrlEncoding::Decode(Path, false).value_or("");
        if (Decoded.empty() || Decoded.front() != '/' || Decoded.find('\\') != std::string::npos)
        {
            return {};
        }
        if (DemoCatalog)
        {
            if (const std::string_view Id = AfterPrefix(Decoded, "/go/product/"); !Id.empty())
            {
                return DemoCatalog->FindProduct(Id) ? "detail.html" : "";
            }
            if (const std::string_view Id = AfterPrefix(Decoded, "/go/finish/"); !Id.empty())
            {
                return DemoCatalog->HasFinish(Id) ? "detail.html" : "";
            }
            if (Decoded == "/oauth/sign-in")
            {
                return "oauth.html";
            }
            if (Decoded == "/oauth-device-success")
            {
                return "oauth-success.html";
            }
        }
        const fs::path Relative = fs::path(Decoded.substr(1)).lexically_normal();
        if (Relative.empty() || Relative == ".")
        {
            return "index.html";
        }
        for (const fs::path& Part : Relative)
        {
            if (Part == ".." || Part.string().starts_with("."))
            {
                return {}; // outside the folder, or hidden
            }
        }
        std::error_code Ignored;
        if (fs::is_regular_file(fs::path(Directory) / Relative, Ignored))
        {
            return Relative.string();
        }
        // A single-page app routes paths like /go/product/P1 itself.
        if (!DemoCatalog && !Relative.has_extension())
        {
            return "index.html";
        }
        return {};
    }

    std::unique_ptr<FOrvHttpResponse> FOrvPanelSite::Get(std::string_view Path) const
    {
        const std::string File = Resolve(Path);
        std::string Body;
        if (File.empty() || !ReadFile(fs::path(Directory) / File, Body))
        {
            return Respond(
                404, "text/html; charset=utf-8",
                InjectBridge("<!DOCTYPE html><html><head><title>Not found</title></head><body><h1>Not "
                             "found</h1><p><a href=\"/\">Back to the catalogue</a></p></body></html>"));
        }
        const std::string_view Type = ContentTypeOf(File);
        return Respond(200, Type, Type.starts_with("text/html") ? InjectBridge(Body) : std::move(Body));
    }
} // namespace OrvWebBridge
