#pragma once

#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Host/Catalog/OrvHostCatalog.h"
#include "Host/OrvHostCommands.h"
#include "Host/Outliner/OrvHostEditorUi.h"
#include "Host/Outliner/OrvHostEnvironment.h"
#include "Host/Outliner/OrvHostFiles.h"

#include <memory>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvMemoryEditor;
    class FOrvServeConsole;

    /**
     * @brief The outliner panel inside "orv-host serve": the panel model on the served level, rescanning
     * (debounced) when AI tools spawn or delete, and its console commands: tree, refresh, select, hide,
     * show and export.
     */
    class FOrvServeOutliner
    {
    public:
        FOrvServeOutliner(FOrvHostEventLoop& InLoop, FOrvMemoryEditor& InEditor, IOrvLog& InLog);
        ~FOrvServeOutliner();
        FOrvServeOutliner(const FOrvServeOutliner&) = delete;
        FOrvServeOutliner& operator=(const FOrvServeOutliner&) = delete;

        /** Opens the catalogue source (--catalog, --api or the demo's); false with the reason in Error. */
        bool Open(const FOrvCatalogSourceOptions& Options, std::string& Error);

        /** Starts the panel (first scan, level events) and adds the outliner commands to Console. */
        void Start(FOrvServeConsole& Console);

        FOrvOutlinerPanelModel& GetPanel() { return *Panel; }

    private:
        /** One row of the tree that a command names. */
        struct FOrvNamedItem
        {
            const FOrvOutlinerMacroCategoryItem* Macro = nullptr;
            const FOrvOutlinerCategoryItem* Category = nullptr;
            const FOrvOutlinerProductItem* Product = nullptr;
        };

        /** Macro category, category, product id, "Brand - Name" or product name, ignoring case, in that
         *  order; Error says why nothing (or more than one product) matched. */
        bool FindItem(const std::string& Name, FOrvNamedItem& Found, std::string& Error) const;

        std::string Tree() const;
        std::string Refresh();
        std::string Select(const std::vector<std::string>& Args);
        std::string SetHidden(const std::vector<std::string>& Args, bool bHide);
        std::string Export(const std::vector<std::string>& Args);

        FOrvHostEventLoop& Loop;
        FOrvMemoryEditor& Editor;
        IOrvLog& Log;
        FOrvHostEditorUi Ui;
        FOrvHostEnvironment Environment;
        FOrvHostFiles Files;
        FOrvHostCatalog Catalog;
        std::unique_ptr<FOrvOutlinerPanelModel> Panel; ///< last: it unregisters from the parts above
    };
} // namespace OrvWebBridge
