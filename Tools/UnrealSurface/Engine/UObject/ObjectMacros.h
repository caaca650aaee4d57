#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/ObjectMacros.h (module CoreUObject).
// Docs: none for the macros themselves; the engine header is the reference.
//
// The reflection markers are read by the engine's header tool, not the compiler, so they expand to
// nothing. GENERATED_BODY works as the tool makes it work: it names a macro that the class's
// "<Header>.generated.h" defines for that line, under CURRENT_FILE_ID. Scripts/check-unreal.sh writes those
// files for our headers (Tools/UnrealSurface/README.md), so a header without its generated include, or
// with another header included after it, fails as it would in the engine.

#include "HAL/Platform.h"

#define UCLASS(...)
#define USTRUCT(...)
#define UENUM(...)
#define UINTERFACE(...)
#define UFUNCTION(...)
#define UPROPERTY(...)
#define UPARAM(...)
#define UMETA(...)

#define ORV_SURFACE_BODY_JOIN_INNER(A, B, C, D) A##B##C##D
#define ORV_SURFACE_BODY_JOIN(A, B, C, D) ORV_SURFACE_BODY_JOIN_INNER(A, B, C, D)
#define GENERATED_BODY(...) ORV_SURFACE_BODY_JOIN(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)

/** What the header tool gives every engine class the surface declares (the surface is not processed). */
#define ORV_SURFACE_UCLASS_BODY(ClassName, SuperClassName)                                                   \
public:                                                                                                      \
    using Super = SuperClassName;                                                                            \
    using ThisClass = ClassName;                                                                             \
    static class UClass* StaticClass();

/** Flags for loading objects (StaticLoadObject, LoadObject). */
enum ELoadFlags
{
    LOAD_None = 0x00000000,
    LOAD_NoWarn = 0x00000010,
    LOAD_Quiet = 0x00002000,
};
