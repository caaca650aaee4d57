#include "Core/Outliner/OrvOutlinerExportDialogModel.h"

namespace OrvWebBridge
{
    FOrvOutlinerExportDialogModel::FOrvOutlinerExportDialogModel(std::string DefaultProjectName,
                                                                 FOnExport InOnExport)
        : ProjectName(std::move(DefaultProjectName)), OnExport(std::move(InOnExport))
    {
    }

    void FOrvOutlinerExportDialogModel::OnExportClicked()
    {
        // A second click while the window closes must not export twice.
        if (!bIsOpen)
        {
            return;
        }
        const std::string FinalProjectName = ProjectName.empty() ? FallbackProjectName : ProjectName;
        const std::string FinalRevision = Revision.empty() ? InitialRevision : Revision;
        if (OnExport)
        {
            OnExport(FinalProjectName, FinalRevision);
        }
        Close();
    }

    void FOrvOutlinerExportDialogModel::OnCancelClicked()
    {
        Close();
    }

    void FOrvOutlinerExportDialogModel::Close()
    {
        if (!bIsOpen)
        {
            return;
        }
        bIsOpen = false;
        if (RequestClose)
        {
            RequestClose();
        }
    }
} // namespace OrvWebBridge
