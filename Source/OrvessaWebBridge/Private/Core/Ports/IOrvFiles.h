#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What the save dialog shows. */
    struct FOrvSaveDialogRequest
    {
        std::string Title;       ///< "Save Product Schedule"
        std::string DefaultPath; ///< folder the dialog starts in
        std::string DefaultFile; ///< proposed file name
        std::string FileTypes;   ///< "CSV Files (*.csv)|*.csv"
    };

    /** @brief The desktop platform's file dialogs and the file helper. Game thread. */
    class IOrvFiles
    {
    public:
        virtual ~IOrvFiles() = default;

        /** Whether a desktop platform (and so a save dialog) exists. */
        virtual bool IsDesktopPlatformAvailable() const = 0;

        /** Shows the save dialog; false when the user cancelled, else the chosen files in OutFiles. */
        virtual bool SaveFileDialog(const FOrvSaveDialogRequest& Request,
                                    std::vector<std::string>& OutFiles) = 0;

        /** Writes Text as UTF-8 without byte order mark; false when the file cannot be written. */
        virtual bool SaveStringToFile(std::string_view Text, const std::string& FilePath) = 0;
    };
} // namespace OrvWebBridge
