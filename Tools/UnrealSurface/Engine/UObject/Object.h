#pragma once

// Engine: Runtime/CoreUObject/Public/UObject/Object.h, UObjectBase.h, UObjectBaseUtility.h (CoreUObject).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/CoreUObject/UObject

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UClass;
class UObject;
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
    FString GetName() const;
    FString GetPathName(const UObject* StopOuter = nullptr) const;
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
