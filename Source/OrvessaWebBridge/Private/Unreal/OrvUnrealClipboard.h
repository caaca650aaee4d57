#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvClipboard.h"

namespace OrvWebBridge
{
    /** @brief IOrvClipboard over the platform's clipboard (ApplicationCore). */
    class FOrvUnrealClipboard final : public IOrvClipboard
    {
    public:
        virtual void ClipboardCopy(std::string_view Text) override;
    };
} // namespace OrvWebBridge
