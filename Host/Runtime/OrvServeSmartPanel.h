#pragma once

#include "Core/SmartPanel/OrvSmartPanel.h"
#include "Host/Runtime/OrvHostClipboard.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    class FOrvMemoryEditor;
    class FOrvServeConsole;

    /**
     * @brief The smart panel inside "orv-host serve": it follows the in-memory editor's viewport and
     * Content Browser selections as the plugin follows the editor's, and adds the console commands that
     * stand for the designer's clicks and keys: viewport-select, browser-select, focus, autodetect, alt-r
     * and copy-url.
     */
    class FOrvServeSmartPanel
    {
    public:
        /** SiteBaseUrl: where product and finish pages live (the panel's own origin in the host). */
        FOrvServeSmartPanel(FOrvMemoryEditor& InEditor, IOrvWebPanel& InPanel, IOrvLog& InLog,
                            std::string SiteBaseUrl);
        ~FOrvServeSmartPanel();
        FOrvServeSmartPanel(const FOrvServeSmartPanel&) = delete;
        FOrvServeSmartPanel& operator=(const FOrvServeSmartPanel&) = delete;

        void AddCommands(FOrvServeConsole& Console);

        FOrvSmartPanel& GetSmartPanel() { return SmartPanel; }
        IOrvLog& GetLog() { return Log; }

        /** The "Auto-Detect" check box, from the console or the page: sets the flag and shows it in the page.
         */
        void SetAutoDetect(bool bEnabled);

        /** What the page's toolbar shows: {"autoDetect": flag, "revision": how many changes so far}. */
        std::string GetToolbarState() const;

    private:
        /** The panel as the smart panel drives it, remembering the last page it was told to load. */
        class FOrvLoadRecorder : public IOrvWebPanel
        {
        public:
            explicit FOrvLoadRecorder(IOrvWebPanel& InPanel) : Panel(InPanel) {}

            bool IsOpen() const override { return Panel.IsOpen(); }
            void LoadUrl(std::string_view Url) override
            {
                LastLoaded = Url;
                Panel.LoadUrl(Url);
            }
            void ExecuteJavascript(std::string_view Script) override { Panel.ExecuteJavascript(Script); }
            std::string GetUrl() const override { return Panel.GetUrl(); }

            std::string LastLoaded;

        private:
            IOrvWebPanel& Panel;
        };

        std::string ViewportSelect(const std::vector<std::string>& Args);
        std::string BrowserSelect(const std::vector<std::string>& Args);
        std::string Focus(const std::vector<std::string>& Args);
        std::string AutoDetect(const std::vector<std::string>& Args);
        std::string AltR();
        std::string CopyUrl();

        /** Runs a command that may navigate the panel; its answer says where the panel went. */
        std::string Navigating(const std::function<std::string()>& Command);

        FOrvMemoryEditor& Editor;
        IOrvWebPanel& Panel;
        IOrvLog& Log;
        FOrvLoadRecorder Recorder;
        FOrvHostClipboard Clipboard;
        FOrvSmartPanel SmartPanel;
        int Revision = 0;
        std::uint64_t SelectionHandle = 0;
        std::uint64_t AssetSelectionHandle = 0;
    };
} // namespace OrvWebBridge
