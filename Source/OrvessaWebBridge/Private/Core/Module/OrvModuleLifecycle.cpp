#include "Core/Module/OrvModuleLifecycle.h"

#include "Core/Common/OrvLogging.h"

namespace OrvWebBridge
{
    namespace
    {
        /** The Display line a step logs when it is done or undone; null for the steps that log nothing. */
        const char* OrvModuleStepLine(EOrvModuleStep Step, bool bUndo)
        {
            switch (Step)
            {
            case EOrvModuleStep::InputPreProcessor:
                return bUndo ? "OrvSmartPanel: Alt+R input processor unregistered"
                             : "OrvSmartPanel: Alt+R input processor registered";
            case EOrvModuleStep::ContentBrowserSelectionListener:
                return bUndo ? nullptr : "OrvSmartPanel: Content Browser selection listener registered";
            default:
                return nullptr;
            }
        }
    } // namespace

    FOrvModuleLifecycle::FOrvModuleLifecycle(IOrvModuleHost& InHost, IOrvLog& InLog, std::uint32_t InMcpPort)
        : Host(InHost), Log(InLog), McpPort(InMcpPort), Lifetime(std::make_shared<FOrvModuleLifecycle*>(this))
    {
    }

    FOrvModuleLifecycle::~FOrvModuleLifecycle()
    {
        Shutdown();
    }

    void FOrvModuleLifecycle::Startup()
    {
        if (bStarted)
        {
            return;
        }
        bStarted = true;
        for (EOrvModuleStep Step : StartupOrder)
        {
            if (Step == EOrvModuleStep::ViewportSelectionListener)
            {
                BindViewportSelectionListener();
            }
            else
            {
                Perform(Step);
            }
        }
        StartMcpServer();
    }

    void FOrvModuleLifecycle::Shutdown()
    {
        if (!bStarted)
        {
            return;
        }
        bStarted = false;
        if (bMcpServerRunning)
        {
            Host.StopMcpServer();
            bMcpServerRunning = false;
        }
        for (EOrvModuleStep Step : ShutdownOrder)
        {
            if (Step == EOrvModuleStep::ViewportSelectionListener && bWaitingForEngineInit)
            {
                // Engine initialisation never came: the deferred binding is dropped, there is nothing to
                // undo.
                Host.CancelPostEngineInit();
                bWaitingForEngineInit = false;
            }
            Undo(Step);
        }
    }

    bool FOrvModuleLifecycle::Perform(EOrvModuleStep Step)
    {
        if (!Host.PerformStep(Step))
        {
            return false;
        }
        Done[static_cast<std::size_t>(Step)] = true;
        if (const char* Line = OrvModuleStepLine(Step, /*bUndo=*/false))
        {
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display, "%s", Line);
        }
        return true;
    }

    void FOrvModuleLifecycle::Undo(EOrvModuleStep Step)
    {
        bool& bDone = Done[static_cast<std::size_t>(Step)];
        if (!bDone)
        {
            return;
        }
        bDone = false;
        Host.UndoStep(Step);
        if (const char* Line = OrvModuleStepLine(Step, /*bUndo=*/true))
        {
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display, "%s", Line);
        }
    }

    void FOrvModuleLifecycle::BindViewportSelectionListener()
    {
        // With the module loaded early the editor engine does not exist yet, and neither does the selection
        // the listener watches: it is bound once engine initialisation has ended.
        if (Host.HasEditorEngine())
        {
            if (Perform(EOrvModuleStep::ViewportSelectionListener))
            {
                OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display,
                        "OrvSmartPanel: Viewport selection listener registered immediately");
            }
            return;
        }
        bWaitingForEngineInit = true;
        Host.DeferToPostEngineInit(
            [WeakLifetime = std::weak_ptr<FOrvModuleLifecycle*>(Lifetime)]()
            {
                const std::shared_ptr<FOrvModuleLifecycle*> Alive = WeakLifetime.lock();
                if (!Alive || !(*Alive)->bWaitingForEngineInit)
                {
                    return;
                }
                FOrvModuleLifecycle& Self = **Alive;
                Self.bWaitingForEngineInit = false;
                if (Self.Perform(EOrvModuleStep::ViewportSelectionListener))
                {
                    OrvLogf(Self.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display,
                            "OrvSmartPanel: Viewport selection listener registered after engine init");
                }
            });
    }

    void FOrvModuleLifecycle::StartMcpServer()
    {
        const std::uint32_t BoundPort = Host.StartMcpServer(McpPort);
        bMcpServerRunning = BoundPort != 0;
        if (bMcpServerRunning)
        {
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display,
                    "Orv MCP: server listening on http://127.0.0.1:%u/sse", BoundPort);
            return;
        }
        // The endpoint is the only start-up step allowed to fail, and it never fails the module.
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                "Orv MCP: failed to start server on port %u (port in use? firewall?). Other plugin "
                "functionality is unaffected.",
                McpPort);
    }
} // namespace OrvWebBridge
