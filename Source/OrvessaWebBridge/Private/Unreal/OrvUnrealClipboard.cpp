#include "Unreal/OrvUnrealClipboard.h"

#include "Unreal/OrvUnrealConversions.h"

#include "HAL/PlatformApplicationMisc.h"

namespace OrvWebBridge
{
    void FOrvUnrealClipboard::ClipboardCopy(std::string_view Text)
    {
        FPlatformApplicationMisc::ClipboardCopy(*FOrvUnrealConversions::ToFString(Text));
    }
} // namespace OrvWebBridge
