#include "Host/Runtime/OrvConsoleLog.h"

#include "Core/Common/OrvLogging.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace
{
    std::string ReadAll(std::FILE* File)
    {
        std::rewind(File);
        std::string Text;
        char Chunk[256];
        std::size_t Read = 0;
        while ((Read = std::fread(Chunk, 1, sizeof(Chunk), File)) > 0)
        {
            Text.append(Chunk, Read);
        }
        return Text;
    }
} // namespace

TEST(FOrvConsoleLogTest, LinesLookLikeTheEngineOutput)
{
    std::FILE* File = std::tmpfile();
    ASSERT_NE(File, nullptr);
    FOrvConsoleLog Log(false, File);
    OrvLogf(Log, EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Warning,
            "Orv MCP: failed to acquire HTTP router on port %u", 30011u);
    Log.Log(EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Log, "Orv MCP: server stopped");
    Log.Log(EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display, "shown");
    EXPECT_EQ(ReadAll(File), "LogOrvMcp: Warning: Orv MCP: failed to acquire HTTP router on port 30011\n"
                             "LogOrvMcp: Orv MCP: server stopped\n"
                             "LogTemp: Display: shown\n");
    std::fclose(File);
}

TEST(FOrvConsoleLogTest, VerboseLinesOnlyWhenAskedFor)
{
    std::FILE* Quiet = std::tmpfile();
    std::FILE* Chatty = std::tmpfile();
    ASSERT_NE(Quiet, nullptr);
    ASSERT_NE(Chatty, nullptr);
    FOrvConsoleLog QuietLog(false, Quiet);
    FOrvConsoleLog ChattyLog(true, Chatty);
    for (IOrvLog* Log : {static_cast<IOrvLog*>(&QuietLog), static_cast<IOrvLog*>(&ChattyLog)})
    {
        Log->Log(EOrvLogCategory::LogTemp, EOrvLogVerbosity::Verbose,
                 "OrvOutlinerScanner: Cached product P1");
    }
    EXPECT_EQ(ReadAll(Quiet), "");
    EXPECT_EQ(ReadAll(Chatty), "LogTemp: Verbose: OrvOutlinerScanner: Cached product P1\n");
    std::fclose(Quiet);
    std::fclose(Chatty);
}
