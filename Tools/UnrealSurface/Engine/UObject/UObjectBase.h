#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/UObjectBase.h (module CoreUObject). The class UObjectBase is
// declared with the others in UObject/Object.h, which brings this header in as the engine's does.
// UObjectInitialized turns false once the object system has shut down: an object must not be touched then.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UObjectInitialized

/** Whether the object system is up: true from its start-up to its shut-down. */
bool UObjectInitialized();
