#pragma once

#include <functional>
#include <string>

namespace OrvWebBridge
{
    /**
     * @brief What the export dialog does, without the widgets: two text boxes (project name, revision)
     * and two buttons. SOrvOutlinerExportDialog binds its boxes and buttons to it and closes its window
     * when asked. Closing the window any other way calls nothing.
     */
    class FOrvOutlinerExportDialogModel
    {
    public:
        using FOnExport = std::function<void(const std::string& ProjectName, const std::string& Revision)>;

        static constexpr const char* InitialRevision = "01";
        static constexpr const char* FallbackProjectName = "Untitled Project";

        FOrvOutlinerExportDialogModel(std::string DefaultProjectName, FOnExport InOnExport);

        /** How the dialog's window is closed (the Slate layer's RequestDestroyWindow). */
        void SetRequestClose(std::function<void()> InRequestClose)
        {
            RequestClose = std::move(InRequestClose);
        }

        const std::string& GetProjectName() const { return ProjectName; }
        const std::string& GetRevision() const { return Revision; }
        void SetProjectName(std::string Text) { ProjectName = std::move(Text); }
        void SetRevision(std::string Text) { Revision = std::move(Text); }

        /** Hands the boxes' texts to the caller (empty ones replaced by their defaults), then closes. */
        void OnExportClicked();

        /** Closes without handing anything over. */
        void OnCancelClicked();

        bool IsOpen() const { return bIsOpen; }

    private:
        void Close();

        std::string ProjectName;
        std::string Revision = InitialRevision;
        FOnExport OnExport;
        std::function<void()> RequestClose;
        bool bIsOpen = true;
    };
} // namespace OrvWebBridge
