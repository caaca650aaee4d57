#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvFiles.h"

namespace OrvWebBridge
{
    /** @brief IOrvFiles over the desktop platform's save dialog and the file helper. */
    class FOrvUnrealFiles final : public IOrvFiles
    {
    public:
        virtual bool IsDesktopPlatformAvailable() const override;
        virtual bool SaveFileDialog(const FOrvSaveDialogRequest& Request,
                                    std::vector<std::string>& OutFiles) override;
        virtual bool SaveStringToFile(std::string_view Text, const std::string& FilePath) override;
    };
} // namespace OrvWebBridge
