#include "Host/OrvHostCommands.h"

#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvTurboJpegModule.h"
#include "Host/Runtime/OrvConsoleLog.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvServeSession.h"

#include <cstdio>
#include <string>
#include <unistd.h>

namespace OrvWebBridge
{
    int RunServeCommand(const FOrvServeOptions& Options)
    {
        FOrvMemoryEditor Editor;
        const FOrvSceneFileResult Loaded =
            Options.SceneFile.empty()
                ? FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo scene", Editor)
                : FOrvSceneFile::Load(Options.SceneFile, Editor);
        if (!Loaded.bOk)
        {
            std::fprintf(stderr, "orv-host serve: %s\n", Loaded.Error.c_str());
            return 1;
        }

        FOrvConsoleLog Log(Options.bVerbose);
        FOrvHostEventLoop Loop;
        FOrvTurboJpegModule Jpeg;
        FOrvServeSession Session(Loop, Editor, Jpeg, Log, Options.SceneFile);
        std::string Error;
        if (!Session.OpenOutliner(Options.Catalog, Error))
        {
            std::fprintf(stderr, "orv-host serve: %s\n", Error.c_str());
            return 1;
        }
        std::optional<FOrvHostPanelOptions> Panel;
        if (!Options.bNoPanel)
        {
            Panel = FOrvHostPanelOptions{Options.PanelPort, Options.SiteDir, Options.Catalog.CatalogFile};
        }
        if (!Session.Start(Options.Port, Panel, Error))
        {
            std::fprintf(stderr, "orv-host serve: %s\n", Error.c_str());
            return 1;
        }
        if (!Options.bNoConsole)
        {
            Session.StartConsole(STDIN_FILENO);
        }
        return Session.Run();
    }
} // namespace OrvWebBridge
