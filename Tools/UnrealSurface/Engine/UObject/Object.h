#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/Object.h, UObjectBase.h, UObjectBaseUtility.h (CoreUObject).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UObject
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UObjectBaseUtility/AddToRoot
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/CoreUObject/UObject/UObjectBaseUtility/RemoveFromRoot?application_version=5.5

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectBase.h"

class UClass;
class UObject;
class UPackage;
class UWorld;

class UObjectBase
{
public:
    virtual ~UObjectBase();
    UClass* GetClass() const;
};

class UObjectBaseUtility : public UObjectBase
{
public:
    /** Keeps the object (and what it holds) from garbage collection until RemoveFromRoot. */
    void AddToRoot();
    void RemoveFromRoot();

    FString GetName() const;
    FString GetPathName(const UObject* StopOuter = nullptr) const;
    /** The package the object lives in. */
    UPackage* GetPackage() const;
};

class UObject : public UObjectBaseUtility
{
public:
    using ThisClass = UObject;
    static UClass* StaticClass();

    /** Records the object in the open transaction (when it is transactional) before it changes. */
    virtual bool Modify(bool bAlwaysMarkDirty = true);
    virtual UWorld* GetWorld() const;
};
