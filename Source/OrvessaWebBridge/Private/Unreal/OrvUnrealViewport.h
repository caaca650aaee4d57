#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvViewport.h"

namespace OrvWebBridge
{
    /** @brief IOrvViewport over GEditor's active viewport and the current level editing viewport client. */
    class FOrvUnrealViewport final : public IOrvViewport
    {
    public:
        virtual bool HasActiveViewport() const override;
        virtual std::optional<FOrvViewInfo> GetLevelViewportView() const override;
        virtual bool HasClientViewport() const override;
        virtual FOrvIntPoint GetViewportSize() const override;
        virtual bool ReadPixels(std::vector<FOrvColor>& Out) override;
    };
} // namespace OrvWebBridge
