// Scene file text into the in-memory editor. Always: either a level or an error naming the file, never a
// crash; a level that loads saves to text that loads again and saves to the same text.
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Tests/Fuzz/Support/OrvFuzzCheck.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace OrvWebBridge;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const std::string Text(reinterpret_cast<const char*>(Data), Size);
    FOrvMemoryEditor Editor;
    const FOrvSceneFileResult Loaded = FOrvSceneFile::LoadText(Text, "fuzz.json", Editor);
    if (!Loaded.bOk)
    {
        OrvFuzzCheck(Loaded.Error.starts_with("fuzz.json: "), "the error names the file", Loaded.Error);
        OrvFuzzCheckUtf8(Loaded.Error, "the error is valid UTF-8");
        return 0;
    }
    const std::string Saved = FOrvSceneFile::SaveText(Editor);
    OrvFuzzCheckUtf8(Saved, "the saved scene is valid UTF-8");
    FOrvMemoryEditor Reloaded;
    const FOrvSceneFileResult Again = FOrvSceneFile::LoadText(Saved, "saved.json", Reloaded);
    OrvFuzzCheck(Again.bOk, "a saved scene loads again", Again.Error + "\n" + Saved);
    OrvFuzzCheck(FOrvSceneFile::SaveText(Reloaded) == Saved, "saving a reloaded scene changes nothing",
                 Saved);
    return 0;
}
