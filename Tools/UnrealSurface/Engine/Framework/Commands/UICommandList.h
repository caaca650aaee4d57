#pragma once

// Engine: Runtime/Slate/Public/Framework/Commands/UICommandList.h (module Slate).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FUICommandList/MapAction
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Commands/FUICommandList/UnmapAction?application_version=5.5

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"

class FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
    FUICommandList();
    virtual ~FUICommandList();

    void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
                   EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
    /** Unmaps a command info that was mapped before. */
    void UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo);
};
