#include "Host/Panel/OrvPanelToolbar.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"
#include "Core/Json/OrvJsonWriter.h"
#include "Core/SmartPanel/OrvCatalogToolbarTexts.h"
#include "Core/SmartPanel/OrvInputKeyPredicate.h"
#include "Host/Panel/OrvPanelServer.h"
#include "Host/Panel/OrvPanelSite.h"
#include "Host/Runtime/OrvServeSmartPanel.h"

namespace OrvWebBridge
{
    namespace
    {
        constexpr std::string_view ToolbarScriptSource =
#include "Host/Panel/OrvPanelToolbar.inc"
            ;

        std::unique_ptr<FOrvHttpResponse> BadRequest(std::string_view Expected)
        {
            return FOrvPanelSite::Respond(400, "text/plain; charset=utf-8",
                                          "Expected " + std::string(Expected) + ".\n");
        }

        /** A whole number in 0..2^32-1, as the engine's key codes are. */
        bool ReadCode(const rapidjson::Value& Object, std::string_view Key, std::uint32_t& Out)
        {
            const rapidjson::Value* Value = FOrvJson::FindField(Object, Key);
            if (!Value || !Value->IsUint())
            {
                return false;
            }
            Out = Value->GetUint();
            return true;
        }

        bool ReadFlag(const rapidjson::Value& Object, std::string_view Key, bool& bOut)
        {
            const rapidjson::Value* Value = FOrvJson::FindField(Object, Key);
            if (!Value || !Value->IsBool())
            {
                return false;
            }
            bOut = Value->GetBool();
            return true;
        }
    } // namespace

    std::string FOrvPanelToolbar::MakeScript()
    {
        using FTexts = FOrvCatalogToolbarTexts;
        std::string Texts;
        FOrvJsonWriter Writer(Texts, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        for (const auto& [Name, Text] :
             {std::pair{"AutoDetect", FTexts::AutoDetect},
              std::pair{"AutoDetectTooltip", FTexts::AutoDetectTooltip}, std::pair{"Hint", FTexts::Hint},
              std::pair{"HintTooltip", FTexts::HintTooltip}, std::pair{"CopyUrl", FTexts::CopyUrl},
              std::pair{"CopyUrlTooltip", FTexts::CopyUrlTooltip}})
        {
            Writer.String(Name, Text.Text);
        }
        Writer.EndObject();
        return "\n" + FOrvStrings::ReplaceAll(ToolbarScriptSource, "/*ORV_TOOLBAR_TEXTS*/ {}", Texts);
    }

    FOrvPanelToolbar::FOrvPanelToolbar(FOrvPanelServer& InServer, FOrvServeSmartPanel& InSmartPanel)
        : Server(InServer), SmartPanel(InSmartPanel)
    {
        Server.AppendPageScript(MakeScript());
        using EAccess = FOrvPanelServer::EOrvPanelAccess;
        Server.BindAnswer(
            "/__orv/toolbar", EOrvHttpVerb::Get, EAccess::PanelPage,
            [this](const FOrvHttpRequest&)
            { return FOrvPanelSite::Respond(200, "application/json", SmartPanel.GetToolbarState()); });
        Server.BindAnswer("/__orv/toolbar", EOrvHttpVerb::Post, EAccess::PanelCall,
                          [this](const FOrvHttpRequest& Request) { return SetAutoDetect(Request); });
        Server.BindAnswer("/__orv/copy-url", EOrvHttpVerb::Post, EAccess::PanelCall,
                          [this](const FOrvHttpRequest&)
                          {
                              SmartPanel.GetSmartPanel().CopyUrl();
                              return FOrvPanelSite::Respond(204, "text/plain", "");
                          });
        Server.BindAnswer("/__orv/key", EOrvHttpVerb::Post, EAccess::PanelCall,
                          [this](const FOrvHttpRequest& Request) { return KeyDown(Request); });
    }

    std::unique_ptr<FOrvHttpResponse> FOrvPanelToolbar::SetAutoDetect(const FOrvHttpRequest& Request)
    {
        rapidjson::Document Body;
        bool bEnabled = false;
        if (!FOrvJson::ParseObject(Request.Body, Body) || !ReadFlag(Body, "autoDetect", bEnabled))
        {
            return BadRequest("{\"autoDetect\": true or false}");
        }
        SmartPanel.SetAutoDetect(bEnabled);
        return FOrvPanelSite::Respond(200, "application/json", SmartPanel.GetToolbarState());
    }

    std::unique_ptr<FOrvHttpResponse> FOrvPanelToolbar::KeyDown(const FOrvHttpRequest& Request)
    {
        rapidjson::Document Body;
        FOrvKeyEvent Key;
        if (!FOrvJson::ParseObject(Request.Body, Body) ||
            !FOrvJson::TryGetStringField(Body, "key", Key.KeyName) ||
            !ReadCode(Body, "keyCode", Key.KeyCode) || !ReadCode(Body, "character", Key.Character) ||
            !ReadFlag(Body, "alt", Key.bAltDown) || !ReadFlag(Body, "ctrl", Key.bControlDown) ||
            !ReadFlag(Body, "shift", Key.bShiftDown))
        {
            return BadRequest(
                "{\"key\": name, \"keyCode\": number, \"character\": number, \"alt\", \"ctrl\", "
                "\"shift\": true or false}");
        }
        const bool bConsumed =
            FOrvInputKeyPredicate::HandleKeyDown(Key, SmartPanel.GetLog(), &SmartPanel.GetSmartPanel());
        return FOrvPanelSite::Respond(200, "application/json",
                                      bConsumed ? "{\"consumed\":true}" : "{\"consumed\":false}");
    }
} // namespace OrvWebBridge
