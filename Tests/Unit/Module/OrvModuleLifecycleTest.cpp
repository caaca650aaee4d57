#include "Core/Module/OrvModuleLifecycle.h"
#include "Core/Module/OrvGuardedGameThread.h"
#include "Core/Module/OrvMissingAccountCatalogApi.h"

#include "Tests/Support/OrvManualGameThread.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    const char* StepName(EOrvModuleStep Step)
    {
        static constexpr const char* Names[] = {"StyleSet",
                                                "Commands",
                                                "CommandBindings",
                                                "LevelEditorBindings",
                                                "InputPreProcessor",
                                                "MenuStartupCallback",
                                                "CatalogTabSpawner",
                                                "OutlinerTabSpawner",
                                                "ViewportSelectionListener",
                                                "ContentBrowserSelectionListener"};
        return Names[static_cast<int>(Step)];
    }

    /** The editor as the module sees it: every call and every log line go into one journal, in order. */
    class FOrvJournalModuleHost : public IOrvModuleHost, public IOrvLog
    {
    public:
        bool PerformStep(EOrvModuleStep Step) override
        {
            Journal.push_back(std::string("perform ") + StepName(Step));
            return !Unavailable.contains(Step);
        }
        void UndoStep(EOrvModuleStep Step) override
        {
            Journal.push_back(std::string("undo ") + StepName(Step));
        }
        bool HasEditorEngine() const override { return bEditorEngine; }
        void DeferToPostEngineInit(std::function<void()> Callback) override
        {
            Journal.push_back("defer to post-engine-init");
            PostEngineInit = std::move(Callback);
        }
        void CancelPostEngineInit() override { Journal.push_back("cancel post-engine-init"); }
        std::uint32_t StartMcpServer(std::uint32_t Port) override
        {
            Journal.push_back("start MCP server on " + std::to_string(Port));
            return bPortBusy ? 0 : Port;
        }
        void StopMcpServer() override { Journal.push_back("stop MCP server"); }

        void Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message) override
        {
            Journal.push_back(std::string(OrvLogCategoryName(Category)) + ": " +
                              OrvLogVerbosityName(Verbosity) + ": " + std::string(Message));
        }

        /** The journal since the last call. */
        std::vector<std::string> Take() { return std::exchange(Journal, {}); }

        bool bEditorEngine = true;
        bool bPortBusy = false;
        std::set<EOrvModuleStep> Unavailable;
        std::function<void()> PostEngineInit;
        std::vector<std::string> Journal;
    };

    int CountContaining(const std::vector<std::string>& Journal, std::string_view Text)
    {
        return static_cast<int>(std::count_if(Journal.begin(), Journal.end(),
                                              [&](const std::string& Entry)
                                              { return Entry.find(Text) != std::string::npos; }));
    }
} // namespace

TEST(FOrvModuleLifecycleTest, StartsInTheFixedOrderWithTheServerLastAndShutsDownWithTheServerFirst)
{
    FOrvJournalModuleHost Host;
    FOrvModuleLifecycle Lifecycle(Host, Host);

    Lifecycle.Startup();
    EXPECT_EQ(Host.Take(),
              (std::vector<std::string>{
                  "perform StyleSet",
                  "perform Commands",
                  "perform CommandBindings",
                  "perform LevelEditorBindings",
                  "perform InputPreProcessor",
                  "LogTemp: Display: OrvSmartPanel: Alt+R input processor registered",
                  "perform MenuStartupCallback",
                  "perform CatalogTabSpawner",
                  "perform OutlinerTabSpawner",
                  "perform ViewportSelectionListener",
                  "LogTemp: Display: OrvSmartPanel: Viewport selection listener registered immediately",
                  "perform ContentBrowserSelectionListener",
                  "LogTemp: Display: OrvSmartPanel: Content Browser selection listener registered",
                  "start MCP server on 30011",
                  "LogTemp: Display: Orv MCP: server listening on http://127.0.0.1:30011/sse",
              }));
    EXPECT_TRUE(Lifecycle.IsMcpServerRunning());

    Lifecycle.Startup();
    EXPECT_TRUE(Host.Take().empty()) << "a second start-up does nothing";

    Lifecycle.Shutdown();
    EXPECT_EQ(Host.Take(), (std::vector<std::string>{
                               "stop MCP server",
                               "undo InputPreProcessor",
                               "LogTemp: Display: OrvSmartPanel: Alt+R input processor unregistered",
                               "undo ViewportSelectionListener",
                               "undo ContentBrowserSelectionListener",
                               "undo MenuStartupCallback",
                               "undo StyleSet",
                               "undo LevelEditorBindings",
                               "undo CommandBindings",
                               "undo Commands",
                               "undo CatalogTabSpawner",
                               "undo OutlinerTabSpawner",
                           }));
    Lifecycle.Shutdown();
    EXPECT_TRUE(Host.Take().empty()) << "a second shut-down does nothing";
}

TEST(FOrvModuleLifecycleTest, BeforeTheEditorEngineExistsTheViewportListenerIsBoundAfterEngineInit)
{
    FOrvJournalModuleHost Host;
    Host.bEditorEngine = false;
    FOrvModuleLifecycle Lifecycle(Host, Host);

    Lifecycle.Startup();
    const std::vector<std::string> Started = Host.Take();
    EXPECT_EQ(CountContaining(Started, "perform ViewportSelectionListener"), 0);
    EXPECT_EQ(CountContaining(Started, "defer to post-engine-init"), 1);
    EXPECT_EQ(CountContaining(Started, "start MCP server"), 1) << "the rest does not wait";

    Host.bEditorEngine = true;
    Host.PostEngineInit();
    EXPECT_EQ(
        Host.Take(),
        (std::vector<std::string>{
            "perform ViewportSelectionListener",
            "LogTemp: Display: OrvSmartPanel: Viewport selection listener registered after engine init"}));

    Lifecycle.Shutdown();
    const std::vector<std::string> Stopped = Host.Take();
    EXPECT_EQ(CountContaining(Stopped, "undo ViewportSelectionListener"), 1);
    EXPECT_EQ(CountContaining(Stopped, "cancel post-engine-init"), 0);
}

TEST(FOrvModuleLifecycleTest, ShutdownBeforeEngineInitDropsTheWaitAndALateCallbackDoesNothing)
{
    FOrvJournalModuleHost Host;
    Host.bEditorEngine = false;
    {
        FOrvModuleLifecycle Lifecycle(Host, Host);
        Lifecycle.Startup();
        Host.Take();
        Lifecycle.Shutdown();
        const std::vector<std::string> Stopped = Host.Take();
        EXPECT_EQ(CountContaining(Stopped, "cancel post-engine-init"), 1);
        EXPECT_EQ(CountContaining(Stopped, "ViewportSelectionListener"), 0) << "never bound, never undone";

        Host.PostEngineInit(); // a host that fired it anyway
        EXPECT_TRUE(Host.Take().empty());
    }
    Host.PostEngineInit(); // and after the sequencer is gone
    EXPECT_TRUE(Host.Take().empty());
}

TEST(FOrvModuleLifecycleTest, StepsThatCannotBePerformedAreNeitherLoggedNorUndoneAndABusyPortOnlyWarnsOnce)
{
    FOrvJournalModuleHost Host;
    Host.bPortBusy = true;
    Host.Unavailable = {EOrvModuleStep::InputPreProcessor, EOrvModuleStep::ViewportSelectionListener};
    FOrvModuleLifecycle Lifecycle(Host, Host);

    Lifecycle.Startup();
    Lifecycle.Startup();
    const std::vector<std::string> Started = Host.Take();
    EXPECT_EQ(CountContaining(Started, "perform "), 10);
    EXPECT_EQ(CountContaining(Started, "OrvSmartPanel: Alt+R"), 0);
    EXPECT_EQ(CountContaining(Started, "OrvSmartPanel: Viewport"), 0);
    EXPECT_FALSE(Lifecycle.IsStepDone(EOrvModuleStep::InputPreProcessor));
    EXPECT_TRUE(Lifecycle.IsStepDone(EOrvModuleStep::MenuStartupCallback));
    EXPECT_EQ(Started.back(), "LogTemp: Warning: Orv MCP: failed to start server on port 30011 (port in use? "
                              "firewall?). Other plugin functionality is unaffected.");
    EXPECT_EQ(CountContaining(Started, "Orv MCP: "), 1);
    EXPECT_FALSE(Lifecycle.IsMcpServerRunning());

    Lifecycle.Shutdown();
    const std::vector<std::string> Stopped = Host.Take();
    EXPECT_EQ(CountContaining(Stopped, "stop MCP server"), 0) << "there is no server to stop";
    EXPECT_EQ(CountContaining(Stopped, "InputPreProcessor"), 0);
    EXPECT_EQ(CountContaining(Stopped, "ViewportSelectionListener"), 0);
    EXPECT_EQ(CountContaining(Stopped, "OrvSmartPanel: Alt+R input processor unregistered"), 0);
    EXPECT_EQ(CountContaining(Stopped, "undo "), 8);
}

TEST(FOrvGuardedGameThreadTest, TasksStillQueuedWhenTheModuleGoesAreDropped)
{
    FOrvManualGameThread Queue;
    std::vector<int> Ran;
    {
        FOrvGuardedGameThread Guarded(Queue);
        Guarded.Post([&]() { Ran.push_back(1); });
        Queue.RunPending();
        Guarded.Post([&]() { Ran.push_back(2); });
    }
    EXPECT_EQ(Queue.RunPending(), 1) << "the queue itself still turns";
    EXPECT_EQ(Ran, std::vector<int>{1});
}

TEST(FOrvMissingAccountCatalogApiTest, WithoutTheAccountModuleRequestsFailLaterAndOneWarningSaysWhy)
{
    FOrvManualGameThread GameThread;
    FOrvJournalModuleHost Log;
    FOrvMissingAccountCatalogApi Api(GameThread, Log);
    std::vector<bool> Answers;

    Api.Post("/orvvault/products/batch", "{}",
             [&](bool bSuccess, auto Answer) { Answers.push_back(bSuccess || Answer != nullptr); });
    EXPECT_TRUE(Answers.empty()) << "completes later, as a real request does";
    Api.SetCookie({"orvsession", "token", "orvessa.com", "/"});
    Api.Post("/orvvault/products/batch", "{}", [&](bool bSuccess, auto) { Answers.push_back(bSuccess); });
    GameThread.RunPending();

    EXPECT_EQ(Answers, (std::vector<bool>{false, false}));
    EXPECT_TRUE(Api.GetCookies().empty());
    const std::vector<std::string> Lines = Log.Take();
    ASSERT_EQ(Lines.size(), 1u);
    EXPECT_EQ(
        Lines[0].rfind("LogTemp: Warning: OrvessaWebBridge: the ORVESSA account module (OrvCore) is not "
                       "installed",
                       0),
        0u);
}
