#pragma once

// Engine: Editor/LevelEditor/Public/LevelEditor.h (module LevelEditor). OnMapChanged is an event of the
// module (only it broadcasts), with the new world and what happened to the map.
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/LevelEditor/FLevelEditorModule/OnMapChanged?application_version=5.5
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/LevelEditor/FLevelEditorModule/FMapChangedEvent
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/LevelEditor/FLevelEditorModule/GetGlobalLevelEditorActions

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Modules/ModuleInterface.h"
#include "UnrealEdMisc.h"

class UWorld;

class FLevelEditorModule : public IModuleInterface
{
public:
    using FMapChangedEvent = TMulticastDelegate<void(UWorld*, EMapChangeType)>;

    /** The actions every level editor widget handles (global shortcuts). */
    virtual const TSharedRef<FUICommandList> GetGlobalLevelEditorActions() const;
    virtual FMapChangedEvent& OnMapChanged();
};
