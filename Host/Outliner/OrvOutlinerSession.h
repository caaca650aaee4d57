#pragma once

#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Host/Catalog/OrvHostCatalog.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/OrvHostCommands.h"
#include "Host/Outliner/OrvHostEditorUi.h"
#include "Host/Outliner/OrvHostEnvironment.h"
#include "Host/Outliner/OrvHostFiles.h"
#include "Host/Runtime/OrvConsoleLog.h"
#include "Host/Runtime/OrvHostEventLoop.h"

#include <memory>
#include <string>

namespace OrvWebBridge
{
    /**
     * @brief One outliner panel on a level held in memory, as the host's commands use it: the level from a
     * scene file (or the demo room), a catalogue source, and the event loop that delivers its answers.
     */
    class FOrvOutlinerSession
    {
    public:
        /** How long a scan may wait for the catalogue before the command gives up. */
        static constexpr double ScanTimeoutSeconds = 30.0;

        explicit FOrvOutlinerSession(bool bVerbose);
        ~FOrvOutlinerSession();

        /** Loads the level and opens the catalogue; false with Error on a bad scene or catalogue. */
        bool Open(const std::string& SceneFile, const FOrvCatalogSourceOptions& Catalog, std::string& Error);

        /** Opens the panel and runs its first scan to the end; false with Error when the catalogue times out.
         */
        bool ScanToCompletion(std::string& Error);

        FOrvOutlinerPanelModel& Panel() { return *PanelModel; }
        FOrvMemoryEditor& Editor() { return MemoryEditor; }
        FOrvHostFiles& Files() { return HostFiles; }
        FOrvHostEventLoop& Loop() { return EventLoop; }
        const std::string& GetCatalogDescription() const { return Catalog.Description; }

    private:
        FOrvHostEventLoop EventLoop;
        FOrvMemoryEditor MemoryEditor;
        FOrvConsoleLog Log;
        FOrvHostEditorUi Ui;
        FOrvHostEnvironment Environment;
        FOrvHostFiles HostFiles;
        FOrvHostCatalog Catalog;
        std::unique_ptr<FOrvOutlinerPanelModel> PanelModel; ///< last: it unregisters from all of the above
    };
} // namespace OrvWebBridge
