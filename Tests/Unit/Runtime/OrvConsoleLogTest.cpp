#include "Host/Runtime/OrvConsoleLog.h"

#include "Core/Common/OrvLogging.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

using namespace OrvWebBridge;

namespace
{
    /** What a console log writes for these lines. */
    std::string Written(bool bVerbose, const auto& WriteLines)
    {
        std::FILE* File = std::tmpfile();
        {
            FOrvConsoleLog Log(bVerbose, File);
            WriteLines(Log);
        }
        std::rewind(File);
        std::string Text(4096, '\0');
        Text.resize(std::fread(Text.data(), 1, Text.size(), File));
        std::fclose(File);
        return Text;
    }
} // namespace

TEST(FOrvConsoleLogTest, LinesLookLikeTheEngineOutputAndVerboseOnesOnlyWhenAskedFor)
{
    const auto Lines = [](FOrvConsoleLog& Log)
    {
        OrvLogf(Log, EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Warning,
                "Orv MCP: failed to acquire HTTP router on port %u", 30011u);
        Log.Log(EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Log, "Orv MCP: server stopped");
        Log.Log(EOrvLogCategory::LogTemp, EOrvLogVerbosity::Verbose, "OrvOutlinerScanner: Cached product P1");
        Log.Log(EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display, "shown");
    };
    const std::string Quiet = "LogOrvMcp: Warning: Orv MCP: failed to acquire HTTP router on port 30011\n"
                              "LogOrvMcp: Orv MCP: server stopped\n";
    EXPECT_EQ(Written(false, Lines), Quiet + "LogTemp: Display: shown\n");
    EXPECT_EQ(Written(true, Lines),
              Quiet + "LogTemp: Verbose: OrvOutlinerScanner: Cached product P1\nLogTemp: Display: shown\n");
}
