#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    constexpr double ExitTimeoutSeconds = 10.0;
    constexpr const char* StoppedLine = "LogOrvMcp: Orv MCP: server stopped";
} // namespace

TEST(FOrvServeLifecycleEndToEndTest, StopSignalsEndTheHostCleanly)
{
    for (const int Signal : {SIGTERM, SIGINT})
    {
        FOrvServedHost Host;
        std::string Error;
        ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {}, Error)) << Error;
        Host.Process().Signal(Signal);
        EXPECT_EQ(Host.Process().WaitForExit(ExitTimeoutSeconds), 0) << "signal " << Signal;
        EXPECT_NE(Host.Process().GetErrors().find(StoppedLine), std::string::npos)
            << Host.Process().GetErrors();
    }
}

TEST(FOrvServeLifecycleEndToEndTest, QuitAsksOnceWhenTheLevelHasUnsavedChanges)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {}, Error)) << Error;
    const FOrvToolCallReply Spawned = Host.CallTool("ue_spawn_product", R"({"asset_path":"SM_Chair"})");
    ASSERT_TRUE(Spawned.Json && Spawned.ErrorCode().empty()) << Spawned.Http.Body;

    EXPECT_EQ(Host.Console("quit"),
              "The level has unsaved changes. Type quit again to leave without saving, or save first.");
    EXPECT_EQ(Host.Client().Get("/health").Status, 200) << "still serving after the warning";
    EXPECT_EQ(Host.Console("quit"), "Bye.");
    EXPECT_EQ(Host.Process().WaitForExit(ExitTimeoutSeconds), 0);
}

TEST(FOrvServeLifecycleEndToEndTest, NoConsoleIgnoresStandardInput)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {"--no-console"}, Error)) << Error;
    Host.Process().Write("quit\n");
    Host.Process().CloseInput();
    EXPECT_FALSE(Host.Process().WaitForExit(0.3).has_value());
    EXPECT_EQ(Host.Client().Get("/health").Status, 200);
}

TEST(FOrvServeLifecycleEndToEndTest, ABusyMcpPortLeavesThePanelServingAndWithoutThePanelEndsTheRun)
{
    FOrvServedHost First;
    std::string Error;
    ASSERT_TRUE(First.Start(ORV_HOST_EXECUTABLE, {"--no-console"}, Error)) << Error;
    const std::string Port = std::to_string(First.GetPort());

    FOrvHostProcess WithPanel;
    ASSERT_TRUE(WithPanel.Start(ORV_HOST_EXECUTABLE,
                                {"serve", "--port", Port, "--panel-port", "0", "--no-console"}, Error))
        << Error;
    EXPECT_TRUE(WithPanel.WaitForOutputLine(
        [](const std::string& Line) { return Line.starts_with("Orv Catalog: "); }, ExitTimeoutSeconds))
        << WithPanel.GetErrors();
    EXPECT_NE(
        WithPanel.GetErrors().find("LogTemp: Warning: Orv MCP: failed to start server on port " + Port +
                                   " (port in use? firewall?). Other plugin functionality is unaffected."),
        std::string::npos)
        << WithPanel.GetErrors();
    EXPECT_EQ(WithPanel.GetOutput().find("Serving MCP"), std::string::npos);
    EXPECT_FALSE(WithPanel.WaitForExit(0.2).has_value()) << "the panel goes on serving";

    FOrvHostProcess WithoutPanel;
    ASSERT_TRUE(WithoutPanel.Start(ORV_HOST_EXECUTABLE,
                                   {"serve", "--port", Port, "--no-panel", "--no-console"}, Error))
        << Error;
    const std::optional<int> Code = WithoutPanel.WaitForExit(ExitTimeoutSeconds);
    ASSERT_TRUE(Code.has_value());
    EXPECT_NE(*Code, 0);
    EXPECT_NE(WithoutPanel.GetErrors().find("port " + Port + " is already in use; pick another with --port"),
              std::string::npos)
        << WithoutPanel.GetErrors();
    EXPECT_EQ(First.Client().Get("/health").Status, 200) << "the first host keeps serving";
}

TEST(FOrvServeLifecycleEndToEndTest, AMalformedSceneFileOrAnHttpsCatalogueIsReportedBeforeServing)
{
    const std::filesystem::path File =
        std::filesystem::temp_directory_path() / ("orv-e2e-broken-" + std::to_string(getpid()) + ".json");
    std::ofstream(File) << R"({"actors": [ {"name": )";
    const std::pair<std::vector<std::string>, std::string> Cases[] = {
        {{"--scene", File.string()}, File.filename().string()},
        {{"--api", "https://api.orvessa.com"}, "https"}};
    for (const auto& [Args, Named] : Cases)
    {
        FOrvHostProcess Host;
        std::string Error;
        std::vector<std::string> Words{"serve", "--port", "0"};
        Words.insert(Words.end(), Args.begin(), Args.end());
        ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, Words, Error)) << Error;
        const std::optional<int> Code = Host.WaitForExit(ExitTimeoutSeconds);
        ASSERT_TRUE(Code.has_value()) << Named;
        EXPECT_NE(*Code, 0) << Named;
        EXPECT_NE(Host.GetErrors().find(Named), std::string::npos) << Host.GetErrors();
        EXPECT_EQ(Host.GetOutput().find("Serving MCP"), std::string::npos) << Named;
    }
    std::filesystem::remove(File);
}
