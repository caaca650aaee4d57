#include "Host/Runtime/OrvServeSmartPanel.h"

#include "Core/Common/OrvStrings.h"
#include "Core/SmartPanel/OrvInputKeyPredicate.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvObjectNames.h"
#include "Host/Runtime/OrvServeConsole.h"

namespace OrvWebBridge
{
    namespace
    {
        /** The one item whose key matches Name ignoring case; Error names the problem otherwise. */
        template <typename TItem, typename TKeyOf, typename TDescribe>
        const TItem* FindUnique(const std::vector<TItem>& Items, const std::string& Name, TKeyOf KeyOf,
                                TDescribe Describe, const char* What, std::string& Error)
        {
            std::vector<const TItem*> Found;
            for (const TItem& Item : Items)
            {
                if (FOrvStrings::EqualsIgnoreCase(KeyOf(Item), Name))
                {
                    Found.push_back(&Item);
                }
            }
            if (Found.size() == 1)
            {
                return Found.front();
            }
            if (Found.empty())
            {
                return nullptr;
            }
            Error = "\"" + Name + "\" names " + std::to_string(Found.size()) + " " + What + "s:";
            for (const TItem* Item : Found)
            {
                Error += " " + Describe(*Item);
            }
            Error += "; name one of them.";
            return nullptr;
        }
    } // namespace

    FOrvServeSmartPanel::FOrvServeSmartPanel(FOrvMemoryEditor& InEditor, IOrvWebPanel& InPanel,
                                             IOrvLog& InLog, std::string SiteBaseUrl)
        : Editor(InEditor), Panel(InPanel), Log(InLog), Recorder(InPanel), Clipboard(InPanel),
          SmartPanel({InEditor.Selection(), InEditor.World(), InEditor.Meshes(), InEditor.Assets(),
                      InEditor.ContentBrowser(), InEditor.WidgetFocus(), Recorder, Clipboard, InLog},
                     std::move(SiteBaseUrl))
    {
        // The editor calls these as the engine calls the module's listeners: after every change.
        SelectionHandle =
            Editor.AddSelectionChangedHandler([this] { SmartPanel.OnViewportSelectionChanged(); });
        AssetSelectionHandle =
            Editor.AddAssetSelectionChangedHandler([this](const std::vector<FOrvAssetData>& Assets)
                                                   { SmartPanel.OnContentBrowserSelectionChanged(Assets); });
    }

    FOrvServeSmartPanel::~FOrvServeSmartPanel()
    {
        Editor.RemoveSelectionChangedHandler(SelectionHandle);
        Editor.RemoveAssetSelectionChangedHandler(AssetSelectionHandle);
    }

    void FOrvServeSmartPanel::AddCommands(FOrvServeConsole& Console)
    {
        Console.AddCommand("viewport-select", "viewport-select [ACTOR...]",
                           "Select actors in the viewport by name or label (none: clear the selection).",
                           [this](const auto& Args)
                           { return Navigating([&] { return ViewportSelect(Args); }); });
        Console.AddCommand("browser-select", "browser-select [ASSET...]",
                           "Select assets in the Content Browser by name or object path (none: clear).",
                           [this](const auto& Args)
                           { return Navigating([&] { return BrowserSelect(Args); }); });
        Console.AddCommand("focus", "focus viewport|browser",
                           "Give the keyboard focus to a panel (for Alt+R).",
                           [this](const auto& Args) { return Focus(Args); });
        Console.AddCommand("autodetect", "autodetect on|off",
                           "Tick or clear the catalogue panel's Auto-Detect check box.",
                           [this](const auto& Args) { return AutoDetect(Args); });
        Console.AddCommand("alt-r", "alt-r", "Press Alt+R: show the selected product or finish in the panel.",
                           [this](const auto&) { return Navigating([this] { return AltR(); }); });
        Console.AddCommand("copy-url", "copy-url", "Press the panel's Copy URL button.",
                           [this](const auto&) { return CopyUrl(); });
    }

    std::string FOrvServeSmartPanel::ViewportSelect(const std::vector<std::string>& Args)
    {
        const std::vector<const FOrvMemoryActor*> Level = Editor.GetLevelActors();
        std::vector<FOrvActorRef> Actors;
        std::string Names;
        for (const std::string& Name : Args)
        {
            // Object names are unique; labels need not be.
            std::string Error;
            const auto ByName = [](const FOrvMemoryActor* Actor) -> const std::string&
            { return Actor->Name; };
            const auto ByLabel = [](const FOrvMemoryActor* Actor) -> const std::string&
            { return Actor->Label; };
            const auto Describe = [](const FOrvMemoryActor* Actor) { return Actor->Name; };
            const FOrvMemoryActor* const* Found = FindUnique(Level, Name, ByName, Describe, "actor", Error);
            if (!Found && Error.empty())
            {
                Found = FindUnique(Level, Name, ByLabel, Describe, "actor", Error);
            }
            if (!Found)
            {
                return Error.empty() ? "No actor \"" + Name + "\" in the level (list shows them)." : Error;
            }
            Actors.push_back((*Found)->Ref);
            Names += (Names.empty() ? "" : ", ") + (*Found)->Label + " (" + (*Found)->Name + ")";
        }
        Editor.Selection().SelectNone();
        for (const FOrvActorRef Actor : Actors)
        {
            Editor.Selection().SelectActor(Actor);
        }
        Editor.Selection().NoteSelectionChange();
        return Names.empty() ? "Viewport selection cleared." : "Viewport selection: " + Names + ".";
    }

    std::string FOrvServeSmartPanel::BrowserSelect(const std::vector<std::string>& Args)
    {
        const std::vector<FOrvAssetData> Registered = Editor.GetRegisteredAssets();
        std::vector<FOrvAssetData> Selected;
        std::string Names;
        for (const std::string& Name : Args)
        {
            std::string Error;
            const FOrvAssetData* Found = nullptr;
            const auto Describe = [](const FOrvAssetData& Asset)
            { return Asset.PackageName + "." + Asset.AssetName; };
            if (Name.starts_with("/"))
            {
                std::string_view Package;
                std::string_view AssetName;
                FOrvObjectNames::SplitObjectPath(Name, Package, AssetName);
                const auto ByPackage = [](const FOrvAssetData& Asset) -> const std::string&
                { return Asset.PackageName; };
                Found = FindUnique(Registered, std::string(Package), ByPackage, Describe, "asset", Error);
                Found =
                    Found && (AssetName.empty() || FOrvStrings::EqualsIgnoreCase(AssetName, Found->AssetName))
                        ? Found
                        : nullptr;
            }
            else
            {
                const auto ByName = [](const FOrvAssetData& Asset) -> const std::string&
                { return Asset.AssetName; };
                Found = FindUnique(Registered, Name, ByName, Describe, "asset", Error);
            }
            if (!Found)
            {
                return Error.empty() ? "No asset \"" + Name + "\" in the project." : Error;
            }
            Selected.push_back(*Found);
            Names += (Names.empty() ? "" : ", ") + Found->AssetName;
        }
        Editor.SetContentBrowserSelection(std::move(Selected));
        return Names.empty() ? "Content Browser selection cleared."
                             : "Content Browser selection: " + Names + ".";
    }

    std::string FOrvServeSmartPanel::Focus(const std::vector<std::string>& Args)
    {
        if (Args.size() == 1 && FOrvStrings::EqualsIgnoreCase(Args[0], "viewport"))
        {
            Editor.SetKeyboardFocus(EOrvMemoryFocus::Viewport);
        }
        else if (Args.size() == 1 && FOrvStrings::EqualsIgnoreCase(Args[0], "browser"))
        {
            Editor.SetKeyboardFocus(EOrvMemoryFocus::ContentBrowser);
        }
        else if (!Args.empty())
        {
            return "Usage: focus viewport|browser";
        }
        return Editor.GetKeyboardFocus() == EOrvMemoryFocus::Viewport ? "Keyboard focus: viewport."
                                                                      : "Keyboard focus: Content Browser.";
    }

    std::string FOrvServeSmartPanel::AutoDetect(const std::vector<std::string>& Args)
    {
        if (Args.size() == 1 &&
            (FOrvStrings::EqualsIgnoreCase(Args[0], "on") || FOrvStrings::EqualsIgnoreCase(Args[0], "off")))
        {
            SetAutoDetect(FOrvStrings::EqualsIgnoreCase(Args[0], "on"));
        }
        else if (!Args.empty())
        {
            return "Usage: autodetect on|off";
        }
        return SmartPanel.IsAutoDetectEnabled() ? "Auto-Detect is on." : "Auto-Detect is off.";
    }

    std::string FOrvServeSmartPanel::AltR()
    {
        // The key goes the way the editor's input pre-processor sees it.
        FOrvKeyEvent Key;
        Key.KeyName = "R";
        Key.KeyCode = 'R';
        Key.Character = 'r';
        Key.bAltDown = true;
        FOrvInputKeyPredicate::HandleKeyDown(Key, Log, &SmartPanel);
        return "Alt+R pressed.";
    }

    std::string FOrvServeSmartPanel::CopyUrl()
    {
        if (!Panel.IsOpen())
        {
            return "The catalogue panel is not open: no page is connected.";
        }
        SmartPanel.CopyUrl();
        return "Copied \"" + Clipboard.GetLastCopied() + "\" to the panel page's clipboard.";
    }

    std::string FOrvServeSmartPanel::Navigating(const std::function<std::string()>& Command)
    {
        Recorder.LastLoaded.clear();
        std::string Answer = Command();
        if (!Panel.IsOpen())
        {
            return Answer + "\nPanel: not open (no page is connected).";
        }
        return Answer + (Recorder.LastLoaded.empty() ? "\nPanel: unchanged."
                                                     : "\nPanel: opens " + Recorder.LastLoaded);
    }

    void FOrvServeSmartPanel::SetAutoDetect(bool bEnabled)
    {
        SmartPanel.SetAutoDetect(bEnabled);
        ++Revision;
        // The page's check box follows, as the tab's check box follows the module's flag.
        Panel.ExecuteJavascript("window.__orv_toolbar&&window.__orv_toolbar.state(" + GetToolbarState() +
                                ");");
    }

    std::string FOrvServeSmartPanel::GetToolbarState() const
    {
        return FOrvStrings::Printf("{\"autoDetect\":%s,\"revision\":%d}",
                                   SmartPanel.IsAutoDetectEnabled() ? "true" : "false", Revision);
    }
} // namespace OrvWebBridge
