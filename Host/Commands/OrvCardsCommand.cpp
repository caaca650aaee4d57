#include "Host/Commands/OrvCardsInput.h"
#include "Host/OrvHostCommands.h"

#include "Core/Formatter/OrvMcpFormatter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace OrvWebBridge
{
    namespace
    {
        // Reads the whole stream; false (with errno's reason in OutError) when reading fails.
        bool ReadStream(std::FILE* Stream, std::string& OutText, std::string& OutError)
        {
            char Buffer[65536];
            std::size_t Read = 0;
            while ((Read = std::fread(Buffer, 1, sizeof(Buffer), Stream)) > 0)
            {
                OutText.append(Buffer, Read);
            }
            if (std::ferror(Stream))
            {
                OutError = std::string("cannot read: ") + std::strerror(errno);
                return false;
            }
            return true;
        }

        bool ReadInput(const std::string& InputFile, std::string& OutText, std::string& OutError)
        {
            if (InputFile == "-")
            {
                return ReadStream(stdin, OutText, OutError);
            }
            std::FILE* File = std::fopen(InputFile.c_str(), "rb");
            if (!File)
            {
                OutError = std::string("cannot open: ") + std::strerror(errno);
                return false;
            }
            const bool bRead = ReadStream(File, OutText, OutError);
            std::fclose(File);
            return bRead;
        }
    } // namespace

    int RunCardsCommand(const FOrvCardsOptions& Options)
    {
        const std::string SourceName = Options.InputFile == "-" ? "standard input" : Options.InputFile;
        std::string Text;
        std::string Error;
        rapidjson::Document Document;
        std::vector<const rapidjson::Value*> Records;
        if (!ReadInput(Options.InputFile, Text, Error) ||
            !FOrvCardsInput::Read(Text, Document, Records, Error))
        {
            std::fprintf(stderr, "orv-host cards: %s: %s\n", SourceName.c_str(), Error.c_str());
            return 1;
        }
        const std::string Markdown = FOrvMcpFormatter::ProductListCards(Records, Options.FullCards);
        std::fwrite(Markdown.data(), 1, Markdown.size(), stdout);
        std::fputc('\n', stdout);
        return std::fflush(stdout) == 0 ? 0 : 1;
    }
} // namespace OrvWebBridge
