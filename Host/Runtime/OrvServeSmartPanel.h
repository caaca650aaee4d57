#pragma once

#include "Core/SmartPanel/OrvSmartPanel.h"
#include "Host/Runtime/OrvHostClipboard.h"

#include <cstdint>
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

    private:
        std::string ViewportSelect(const std::vector<std::string>& Args);
        std::string BrowserSelect(const std::vector<std::string>& Args);
        std::string Focus(const std::vector<std::string>& Args);
        std::string AutoDetect(const std::vector<std::string>& Args);
        std::string AltR();
        std::string CopyUrl();

        /** What the panel shows now, for the commands that may navigate it. */
        std::string PanelStatus() const;

        FOrvMemoryEditor& Editor;
        IOrvWebPanel& Panel;
        IOrvLog& Log;
        FOrvHostClipboard Clipboard;
        FOrvSmartPanel SmartPanel;
        std::uint64_t SelectionHandle = 0;
        std::uint64_t AssetSelectionHandle = 0;
    };
} // namespace OrvWebBridge
