#pragma once

// Engine: Runtime/Core/Public/Misc/CoreDelegates.h (module Core). OnPostEngineInit is broadcast once, at
// the end of the engine's initialisation (before modules of the PostEngineInit phase load); it also fires in
// commandlets. A binding made after that never runs.
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Core/Misc/FCoreDelegates/OnPostEngineInit?application_version=5.4

#include "Delegates/Delegate.h"

class FCoreDelegates
{
public:
    static FSimpleMulticastDelegate OnPostEngineInit;
};
