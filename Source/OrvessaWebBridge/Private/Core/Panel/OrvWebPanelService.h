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

    private:
        IOrvWebPanel& Panel;
        IOrvLog& Log;
    };
} // namespace OrvWebBridge
