// Product records to Markdown cards, as `orv-host cards` reads them. Always: records or a clear error;
// cards that are valid UTF-8 and grow at most linearly with the records.
#include "Core/Formatter/OrvMcpFormatter.h"
#include "Host/Commands/OrvCardsInput.h"
#include "Tests/Fuzz/Support/OrvFuzzCheck.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace OrvWebBridge;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const std::string_view Text(reinterpret_cast<const char*>(Data), Size);
    rapidjson::Document Document;
    std::vector<const rapidjson::Value*> Records;
    std::string Error;
    if (!FOrvCardsInput::Read(Text, Document, Records, Error))
    {
        OrvFuzzCheck(!Error.empty(), "a refusal says why");
        return 0;
    }
    const std::string Cards = FOrvMcpFormatter::ProductListCards(Records, 3);
    OrvFuzzCheckUtf8(Cards, "the cards are valid UTF-8");
    OrvFuzzCheck(Cards.size() <= 8 * Size + 1024, "the cards grow linearly with the records", Cards);
    return 0;
}
