#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/UObjectGlobals.h (module CoreUObject).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/StaticLoadObject
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/NewObject
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/CoreUObject/UObject/GetTransientPackage?application_version=5.4

#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

class UPackage;
class UPackageMap;
struct FLinkerInstancingContext;

/**
 * Finds or loads an object by path. The 5.5 page has Name and Filename as const TCHAR*; the current page
 * has FStringView. Declared with const TCHAR* here: a call that passes *String and nullptr compiles
 * against both. [unconf: which of the two 5.6 has]
 */
UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
                          uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr,
                          bool bAllowObjectReconciliation = true,
                          const FLinkerInstancingContext* InstancingContext = nullptr);

/** The transient top-level package: objects in it are never saved. */
UPackage* GetTransientPackage();

/**
 * A new object of class T in Outer (by default the transient package), with a generated name. Only the
 * garbage collector frees it: keep it referenced (AddToRoot) while it is used.
 */
template <class T> T* NewObject(UObject* Outer = (UObject*)GetTransientPackage());
