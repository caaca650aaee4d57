#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    constexpr double ExitTimeoutSeconds = 10.0;
    constexpr const char* StoppedLine = "LogOrvMcp: Orv MCP: server stopped";

    /** "orv-host serve" with Args ends before serving, with an error that names Named. */
    void ExpectTheRunEnds(const std::vector<std::string>& Args, const std::string& Named)
    {
        FOrvHostProcess Host;
        std::string Error;
        std::vector<std::string> Words{"serve", "--no-console"};
        Words.insert(Words.end(), Args.begin(), Args.end());
        ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, Words, Error)) << Error;
        const std::optional<int> Code = Host.WaitForExit(ExitTimeoutSeconds);
        ASSERT_TRUE(Code.has_value()) << Named;
        EXPECT_NE(*Code, 0) << Named;
        EXPECT_NE(Host.GetErrors().find(Named), std::string::npos) << Host.GetErrors();
        EXPECT_EQ(Host.GetOutput().find("Serving MCP"), std::string::npos) << Named;
    }
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

TEST(FOrvServeLifecycleEndToEndTest, StartUpAndShutDownLogTheModuleLinesInTheEditorsOrder)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {}, Error)) << Error;
    EXPECT_EQ(Host.Console("quit"), "Bye.");
    ASSERT_EQ(Host.Process().WaitForExit(ExitTimeoutSeconds), 0);

    std::vector<std::string> ModuleLines;
    std::istringstream Errors(Host.Process().GetErrors());
    for (std::string Line; std::getline(Errors, Line);)
    {
        // The module's lines, and the endpoint's last one, which shows that it stops first.
        if (Line.find("OrvSmartPanel: ") != std::string::npos ||
            Line.starts_with("LogTemp: Display: Orv MCP: ") || Line == StoppedLine)
        {
            ModuleLines.push_back(Line);
        }
    }
    const std::string Url = "http://127.0.0.1:" + std::to_string(Host.GetPort());
    EXPECT_EQ(ModuleLines,
              (std::vector<std::string>{
                  "LogTemp: Display: OrvSmartPanel: Alt+R input processor registered",
                  "LogTemp: Display: OrvSmartPanel: Viewport selection listener registered immediately",
                  "LogTemp: Display: OrvSmartPanel: Content Browser selection listener registered",
                  "LogTemp: Display: Orv MCP: server listening on " + Url + "/sse",
                  StoppedLine,
                  "LogTemp: Display: OrvSmartPanel: Alt+R input processor unregistered",
              }));
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

TEST(FOrvServeLifecycleEndToEndTest, ABusyMcpPortLeavesThePanelServingAndABusyPanelPortOrNoPanelEndsTheRun)
{
    FOrvServedHost First;
    std::string Error;
    ASSERT_TRUE(First.Start(ORV_HOST_EXECUTABLE, {"--no-console"}, Error)) << Error;
    const std::string Port = std::to_string(First.GetPort());

    FOrvHostProcess WithPanel;
    ASSERT_TRUE(WithPanel.Start(ORV_HOST_EXECUTABLE,
                                {"serve", "--port", Port, "--panel-port", "0", "--no-console"}, Error))
        << Error;
    const std::optional<std::string> PanelLine = WithPanel.WaitForOutputLine(
        [](const std::string& Line) { return Line.starts_with("Orv Catalog: "); }, ExitTimeoutSeconds);
    ASSERT_TRUE(PanelLine.has_value()) << WithPanel.GetErrors();
    const std::string Warning = "LogTemp: Warning: Orv MCP: failed to start server on port " + Port +
                                " (port in use? firewall?). Other plugin functionality is unaffected.";
    const std::string Errors = WithPanel.GetErrors();
    const std::size_t At = Errors.find(Warning);
    EXPECT_NE(At, std::string::npos) << Errors;
    EXPECT_EQ(Errors.find(Warning, At + 1), std::string::npos) << "warned once: " << Errors;
    EXPECT_EQ(WithPanel.GetOutput().find("Serving MCP"), std::string::npos);
    EXPECT_FALSE(WithPanel.WaitForExit(0.2).has_value()) << "the panel goes on serving";

    // The panel's port taken (by the host above), or no panel with MCP's taken: nothing left to serve.
    const std::string Origin = "Orv Catalog: http://127.0.0.1:";
    const std::string PanelPort =
        PanelLine->substr(Origin.size(), PanelLine->find('/', Origin.size()) - Origin.size());
    ExpectTheRunEnds({"--port", Port, "--no-panel"},
                     "port " + Port + " is already in use; pick another with --port");
    ExpectTheRunEnds({"--port", "0", "--panel-port", PanelPort},
                     "port " + PanelPort + " is already in use; pick another with --panel-port");
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
        std::vector<std::string> Words{"--port", "0"};
        Words.insert(Words.end(), Args.begin(), Args.end());
        ExpectTheRunEnds(Words, Named);
    }
    std::filesystem::remove(File);
}
