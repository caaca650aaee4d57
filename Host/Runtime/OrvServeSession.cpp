#include "Host/Runtime/OrvServeSession.h"

#include "Core/Common/OrvUtf8.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Panel/OrvPanelPage.h"
#include "Host/Panel/OrvPanelToolbar.h"
#include "Host/Runtime/OrvHostEventLoop.h"

#include <csignal>
#include <unistd.h>

namespace OrvWebBridge
{
    FOrvServeSession::FOrvServeSession(FOrvHostEventLoop& InLoop, FOrvMemoryEditor& InEditor,
                                       IOrvImageWrapperModule& Images, IOrvLog& InLog, std::string SceneFile)
        : Loop(InLoop), Editor(InEditor), Log(InLog),
          Endpoint(InLoop, InEditor.McpPorts(Images, InLoop.GameThread(), InLog), InLog),
          Panel(InLoop, InLog, [this](const std::string& Text) { Print(Text); }),
          Console(InEditor, std::move(SceneFile), [this] { Loop.Stop(); }),
          Input(
              InLoop, [this](const std::string& Line) { OnConsoleLine(Line); }, [] {})
    {
    }

    FOrvServeSession::~FOrvServeSession()
    {
        // The outliner's panel and the smart panel unregister from the editor, the loop's timers and the
        // catalogue panel while these still exist.
        Outliner.reset();
        StopSmartPanel();
        // The endpoint and the panel stop in the module's shut-down order, if Run did not already.
        Lifecycle.reset();
    }

    bool FOrvServeSession::OpenOutliner(const FOrvCatalogSourceOptions& Catalog, std::string& Error)
    {
        auto Opened = std::make_unique<FOrvServeOutliner>(Loop, Editor, Log);
        if (!Opened->Open(Catalog, Error))
        {
            return false;
        }
        Outliner = std::move(Opened);
        return true;
    }

    bool FOrvServeSession::Start(std::uint32_t Port, const std::optional<FOrvHostPanelOptions>& PanelOptions,
                                 std::string& Error)
    {
        // Output to a closed pipe must fail as a write error, not end the host.
        std::signal(SIGPIPE, SIG_IGN);
        ModuleHost = std::make_unique<FOrvHostModuleHost>(Endpoint, Panel, PanelOptions);
        Lifecycle = std::make_unique<FOrvModuleLifecycle>(*ModuleHost, Log, Port);
        Lifecycle->Startup();
        const bool bMcp = Lifecycle->IsMcpServerRunning();
        const bool bPanelFailed = PanelOptions && !Lifecycle->IsStepDone(EOrvModuleStep::CatalogTabSpawner);
        if (bPanelFailed || (!bMcp && !PanelOptions))
        {
            Error = bPanelFailed ? ModuleHost->GetPanelError() : ModuleHost->GetMcpError();
            Lifecycle->Shutdown();
            return false;
        }
        if (PanelOptions)
        {
            // Product and finish pages are the panel's own: its origin is the catalogue site.
            std::string Origin = Panel.GetUrl();
            Origin.pop_back();
            SmartPanel = std::make_unique<FOrvServeSmartPanel>(Editor, *Panel.GetPage(), Log, Origin);
            SmartPanel->AddCommands(Console);
            PanelToolbar = std::make_unique<FOrvPanelToolbar>(*Panel.GetServer(), *SmartPanel);
        }
        Signals = std::make_unique<FOrvStopSignals>(Loop, [this](int) { Loop.Stop(); });
        if (Outliner)
        {
            // The first scan starts only once serving is sure, so a busy port ends the run quietly.
            Outliner->Start(Console);
        }
        // One write, so that whoever reads the panel's line has the endpoint's line too.
        const std::string PanelLine =
            PanelOptions ? "Orv Catalog: " + Panel.GetUrl() + " (sign in as demo, password demo)\n" : "";
        Print(PanelLine + (bMcp ? "Serving MCP on " + Endpoint.GetMcpUrl() + "\n" : ""));
        return true;
    }

    bool FOrvServeSession::StartConsole(int InputFd)
    {
        if (!Input.Start(InputFd))
        {
            return false;
        }
        bPrompt = isatty(InputFd) && isatty(STDOUT_FILENO);
        Print(std::string("Console ready: type help for the commands.\n") + (bPrompt ? "orv> " : ""));
        return true;
    }

    int FOrvServeSession::Run()
    {
        Loop.Run(&Log);
        Input.Stop();
        Signals.reset();
        StopSmartPanel();
        if (Lifecycle)
        {
            Lifecycle->Shutdown();
        }
        if (Editor.IsDirty())
        {
            std::fprintf(stderr, "orv-host: the level's unsaved changes were discarded.\n");
        }
        return 0;
    }

    void FOrvServeSession::OnConsoleLine(const std::string& Line)
    {
        std::string Text = Console.Execute(Line);
        if (bPrompt)
        {
            Text += "orv> ";
        }
        Print(Text);
    }

    void FOrvServeSession::Print(const std::string& Text)
    {
        // Console answers quote names the user typed; what goes out is valid UTF-8 all the same.
        const std::string Valid = FOrvUtf8::MakeValid(Text);
        std::fwrite(Valid.data(), 1, Valid.size(), stdout);
        // Tests and other programs read the URL and the console's answers through a pipe.
        std::fflush(stdout);
    }

    void FOrvServeSession::StopSmartPanel()
    {
        // The loop no longer runs, so the toolbar's routes see no request before the panel's server stops.
        PanelToolbar.reset();
        SmartPanel.reset();
    }
} // namespace OrvWebBridge
