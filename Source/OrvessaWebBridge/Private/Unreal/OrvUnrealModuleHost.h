#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabManager.h"

#include "Core/Module/OrvModuleMenus.h"
#include "Core/Ports/IOrvModuleHost.h"

class FOrvessaWebBridgeModule;
class FOrvInputProcessor;
class FUICommandList;

namespace OrvWebBridge
{
    class FOrvComposition;

    /**
     * @brief IOrvModuleHost over the editor: each start-up step is the engine registration it names, undone
     * by the matching unregistration. Handles and the command list live here from one to the other.
     */
    class FOrvUnrealModuleHost final : public IOrvModuleHost
    {
    public:
        FOrvUnrealModuleHost(FOrvessaWebBridgeModule& InModule, FOrvComposition& InComposition);
        virtual ~FOrvUnrealModuleHost() override;

        virtual bool PerformStep(EOrvModuleStep Step) override;
        virtual void UndoStep(EOrvModuleStep Step) override;
        virtual bool HasEditorEngine() const override;
        virtual void DeferToPostEngineInit(std::function<void()> Callback) override;
        virtual void CancelPostEngineInit() override;
        virtual std::uint32_t StartMcpServer(std::uint32_t Port) override;
        virtual void StopMcpServer() override;

    private:
        static void RegisterTabSpawner(const FOrvTabEntry& Tab, const FText& DisplayName,
                                       const FOnSpawnTab& OnSpawn);

        FOrvessaWebBridgeModule& Module;
        FOrvComposition& Composition;
        TSharedPtr<FUICommandList> PluginCommands;
        TSharedPtr<FOrvInputProcessor> InputProcessor;
        FDelegateHandle MenuStartupHandle;
        FDelegateHandle PostEngineInitHandle;
        FDelegateHandle ViewportSelectionHandle;
        FDelegateHandle ContentBrowserSelectionHandle;
    };
} // namespace OrvWebBridge
