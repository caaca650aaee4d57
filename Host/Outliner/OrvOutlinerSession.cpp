#include "Host/Outliner/OrvOutlinerSession.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvSceneFile.h"

#include <filesystem>

namespace OrvWebBridge
{
    // The project directory of a command is the directory it runs in: the schedule lands there by default.
    FOrvOutlinerSession::FOrvOutlinerSession(bool bVerbose)
        : Log(bVerbose), Environment(std::filesystem::current_path().string())
    {
    }

    FOrvOutlinerSession::~FOrvOutlinerSession()
    {
        PanelModel.reset();
    }

    bool FOrvOutlinerSession::Open(const std::string& SceneFile,
                                   const FOrvCatalogSourceOptions& CatalogOptions, std::string& Error)
    {
        const FOrvSceneFileResult Loaded =
            SceneFile.empty() ? FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()),
                                                        "built-in demo room", MemoryEditor)
                              : FOrvSceneFile::Load(SceneFile, MemoryEditor);
        if (!Loaded.bOk)
        {
            Error = Loaded.Error;
            return false;
        }
        Catalog = FOrvHostCatalog::Open(CatalogOptions, EventLoop);
        if (!Catalog.Api)
        {
            Error = Catalog.Error;
            return false;
        }
        PanelModel = std::make_unique<FOrvOutlinerPanelModel>(
            FOrvOutlinerPanelPorts{MemoryEditor.World(), MemoryEditor.LevelEvents(), MemoryEditor.Meshes(),
                                   *Catalog.Api, MemoryEditor.Selection(), MemoryEditor.Editing(),
                                   EventLoop.Timers(), Ui, HostFiles, Environment, Log});
        return true;
    }

    bool FOrvOutlinerSession::ScanToCompletion(std::string& Error)
    {
        PanelModel->Construct();
        if (!EventLoop.RunUntil([this]() { return !PanelModel->IsRefreshing(); }, ScanTimeoutSeconds))
        {
            Error = FOrvStrings::Printf("the catalogue (%s) did not answer within %.0f seconds",
                                        Catalog.Description.c_str(), ScanTimeoutSeconds);
            return false;
        }
        return true;
    }
} // namespace OrvWebBridge
