#include "Host/Commands/OrvCardsInput.h"
#include "Host/OrvHostCommands.h"
#include "Host/Runtime/OrvInputFile.h"

#include "Core/Formatter/OrvMcpFormatter.h"

#include <cstdio>
#include <string>

namespace OrvWebBridge
{
    int RunCardsCommand(const FOrvCardsOptions& Options)
    {
        std::string Text;
        std::string Error;
        rapidjson::Document Document;
        std::vector<const rapidjson::Value*> Records;
        if (!FOrvInputFile::Read(Options.InputFile, Text, Error))
        {
            std::fprintf(stderr, "orv-host cards: %s\n", Error.c_str());
            return 1;
        }
        if (!FOrvCardsInput::Read(Text, Document, Records, Error))
        {
            const std::string SourceName = FOrvInputFile::DisplayName(Options.InputFile);
            std::fprintf(stderr, "orv-host cards: %s: %s\n", SourceName.c_str(), Error.c_str());
            return 1;
        }
        const std::string Markdown = FOrvMcpFormatter::ProductListCards(Records, Options.FullCards);
        std::fwrite(Markdown.data(), 1, Markdown.size(), stdout);
        std::fputc('\n', stdout);
        return std::fflush(stdout) == 0 ? 0 : 1;
    }
} // namespace OrvWebBridge
