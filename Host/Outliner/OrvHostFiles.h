#pragma once

#include "Core/Ports/IOrvFiles.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief Files for the headless host. There is no dialog to show: the "chosen" file is decided before
     * (a command's output option), or the proposed name in the proposed folder is taken. Text is written
     * atomically through a temporary file, and an existing file is replaced only when allowed.
     */
    class FOrvHostFiles : public IOrvFiles
    {
    public:
        bool IsDesktopPlatformAvailable() const override { return true; }
        bool SaveFileDialog(const FOrvSaveDialogRequest& Request,
                            std::vector<std::string>& OutFiles) override;
        bool SaveStringToFile(std::string_view Text, const std::string& FilePath) override;

        /** The answer of the next save dialog; unset: the proposed file in the proposed folder. */
        std::optional<std::string> DialogAnswer;
        bool bAllowOverwrite = false;

        /** The file the last successful SaveStringToFile wrote. */
        std::optional<std::string> LastSavedPath;

        /** Why the last SaveStringToFile failed. */
        std::string LastError;

        /** Whether SaveStringToFile failed because the file exists and overwriting is not allowed. */
        bool bLastFailureWasExistingFile = false;
    };
} // namespace OrvWebBridge
