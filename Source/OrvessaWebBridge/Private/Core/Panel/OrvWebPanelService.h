#pragma once

#include "Core/Ports/IOrvLog.h"
#include "Core/Ports/IOrvWebPanel.h"

#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief The module's services over the catalogue panel that other parts reach through the module:
     * navigate it and run script in it, each logged, with a Warning while the panel is closed.
     */
    class FOrvWebPanelService
    {
    public:
        FOrvWebPanelService(IOrvWebPanel& InPanel, IOrvLog& InLog) : Panel(InPanel), Log(InLog) {}

        /** Loads Url in the panel, or only warns when the panel is closed. */
        void Navigate(std::string_view Url);

        /** Runs Script in the panel, or only warns when the panel is closed. */
        void ExecuteScript(std::string_view Script);

        IOrvWebPanel& GetPanel() const { return Panel; }

        // What the panel's browser reports, logged the same wherever a browser shows the panel.
        /** A message of the page's console; Severity is the browser's level number. */
        static void LogConsoleMessage(IOrvLog& Log, int Severity, std::string_view Message,
                                      std::string_view Source, int Line);
        /** A page finished loading. */
        static void LogLoadCompleted(IOrvLog& Log);
        /** A page failed to load; the browser gives no reason. */
        static void LogLoadError(IOrvLog& Log);

    private:
        IOrvWebPanel& Panel;
        IOrvLog& Log;
    };
} // namespace OrvWebBridge
