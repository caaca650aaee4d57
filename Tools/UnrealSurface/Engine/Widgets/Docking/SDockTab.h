#pragma once

// Engine: Runtime/Slate/Public/Widgets/Docking/SDockTab.h (module Slate). A nomad tab can dock anywhere,
// in any window.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/SDockTab

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

enum ETabRole : uint8
{
    MajorTab,
    PanelTab,
    NomadTab,
    DocumentTab,
};

class SDockTab : public SCompoundWidget
{
public:
    /** Called when the tab closes, with the tab. */
    DECLARE_DELEGATE_OneParam(FOnTabClosedCallback, TSharedRef<SDockTab>)

        SLATE_BEGIN_ARGS(SDockTab)
    {
    }
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_ARGUMENT(ETabRole, TabRole)
    SLATE_EVENT(FOnTabClosedCallback, OnTabClosed)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);
};
