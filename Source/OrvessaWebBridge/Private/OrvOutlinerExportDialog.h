#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SWindow;

namespace OrvWebBridge
{
    class FOrvOutlinerExportDialogModel;
}

/** Receives the project name and the revision the user confirmed. */
DECLARE_DELEGATE_TwoParams(FOnOrvOutlinerExport, const FString& /*ProjectName*/, const FString& /*Revision*/);

/** @brief The modal "Export Product Schedule" dialog: draws FOrvOutlinerExportDialogModel, which decides. */
class SOrvOutlinerExportDialog : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SOrvOutlinerExportDialog) {}
    SLATE_ARGUMENT(FString, DefaultProjectName)
    SLATE_EVENT(FOnOrvOutlinerExport, OnExport)
    SLATE_ARGUMENT(TSharedPtr<SWindow>, ParentWindow)
    SLATE_END_ARGS()

    /** Shows the dialog as a modal window over the editor's root window; returns once it has closed. */
    static void OpenDialog(const FString& DefaultProjectName, FOnOrvOutlinerExport OnExport);

    SOrvOutlinerExportDialog();
    virtual ~SOrvOutlinerExportDialog() override;

    void Construct(const FArguments& InArgs);

private:
    FReply OnExportClicked();
    FReply OnCancelClicked();

    TUniquePtr<OrvWebBridge::FOrvOutlinerExportDialogModel> Model;
    TWeakPtr<SWindow> Window;
};
