#include "Host/Editor/OrvMemoryEditorPorts.h"

namespace OrvWebBridge
{
    std::vector<std::string> FOrvMemoryWidgetFocusPort::GetFocusedWidgetTypes() const
    {
        // The widget types the editor's own focus walk meets, from the focused widget up to the window.
        if (Context.Ui.Focus == EOrvMemoryFocus::ContentBrowser)
        {
            return {"SAssetTileView",  "SBorder",          "SAssetView",   "SSplitter",
                    "SContentBrowser", "SDockingTabStack", "SDockingArea", "SWindow"};
        }
        return {"SViewport", "SOverlay", "SLevelViewport", "SDockingTabStack", "SDockingArea", "SWindow"};
    }
} // namespace OrvWebBridge
