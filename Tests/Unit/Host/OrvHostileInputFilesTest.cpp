// Files an attacker or an accident hands the host: devices, FIFOs, huge files and JSON nested beyond the
// bound. Each reader must answer with a message naming the file, at once, without exhausting anything.
#include "Host/Catalog/OrvOfflineCatalogApi.h"
#include "Host/Commands/OrvCardsInput.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Runtime/OrvInputFile.h"
#include "Tests/Support/OrvManualGameThread.h"
#include "Tests/Support/OrvTempDirectory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace OrvWebBridge;

namespace
{
    std::string ReadError(const std::string& Path)
    {
        std::string Text;
        std::string Error;
        EXPECT_FALSE(FOrvInputFile::Read(Path, Text, Error)) << Path;
        EXPECT_TRUE(Text.empty());
        return Error;
    }

    const std::string DeepJson = std::string(300, '[') + std::string(300, ']');
    const std::string DepthProblem = "line 1, column 257: arrays and objects nest deeper than 256 levels";
} // namespace

TEST(FOrvHostileInputFilesTest, DevicesDirectoriesFifosAndHugeFilesAreRefusedAtOnce)
{
    FOrvTempDirectory Directory;
    const std::string Fifo = (Directory.Path / "pipe.json").string();
    ASSERT_EQ(mkfifo(Fifo.c_str(), 0600), 0);
    // Sparse: the size is there without writing 64 MiB.
    const std::string Huge = (Directory.Path / "huge.json").string();
    std::ofstream(Huge).close();
    std::filesystem::resize_file(Huge, FOrvInputFile::MaxBytes + 1);

    EXPECT_EQ(ReadError("/dev/zero"), "/dev/zero: not a regular file");
    EXPECT_EQ(ReadError(Fifo), Fifo + ": not a regular file");
    EXPECT_EQ(ReadError(Directory.Path.string()), Directory.Path.string() + ": is a directory");
    EXPECT_EQ(ReadError(Huge), Huge + ": larger than the 64 MiB an input file may have");
    EXPECT_EQ(ReadError((Directory.Path / "none.json").string()),
              (Directory.Path / "none.json").string() + ": cannot open: No such file or directory");

    // The readers go through it: the scene and the catalogue name the file.
    FOrvMemoryEditor Editor;
    EXPECT_EQ(FOrvSceneFile::Load("/dev/zero", Editor).Error, "/dev/zero: not a regular file");
    FOrvManualGameThread GameThread;
    FOrvOfflineCatalogApi Catalog(GameThread);
    EXPECT_EQ(Catalog.LoadFile(Huge).Error, Huge + ": larger than the 64 MiB an input file may have");
}

TEST(FOrvHostileInputFilesTest, EveryJsonReaderRefusesDeepNestingNamingTheFileAndTheDepth)
{
    FOrvMemoryEditor Editor;
    EXPECT_EQ(FOrvSceneFile::LoadText(R"({"actors":)" + DeepJson + "}", "room.json", Editor).Error,
              "room.json: line 1, column 266: arrays and objects nest deeper than 256 levels");

    // Files that must be UTF-8 must not become anything else through an escape either.
    EXPECT_EQ(FOrvSceneFile::LoadText(R"({"map":"A\udc00"})", "room.json", Editor).Error,
              "room.json: line 1, column 17: Invalid encoding in string.");

    FOrvManualGameThread GameThread;
    FOrvOfflineCatalogApi Catalog(GameThread);
    EXPECT_EQ(Catalog.LoadText(DeepJson, "catalog.json").Error, "catalog.json: " + DepthProblem);

    rapidjson::Document Document;
    std::vector<const rapidjson::Value*> Records;
    std::string Error;
    EXPECT_FALSE(FOrvCardsInput::Read(DeepJson, Document, Records, Error));
    EXPECT_EQ(Error, "invalid JSON at " + DepthProblem);
}
