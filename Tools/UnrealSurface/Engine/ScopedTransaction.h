#pragma once

// Engine: Editor/UnrealEd/Public/ScopedTransaction.h (module UnrealEd). The constructor is nodiscard: an
// unnamed temporary would end the transaction at once.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Editor/UnrealEd/FScopedTransaction

#include "CoreMinimal.h"

class FScopedTransaction
{
public:
    UE_NODISCARD_CTOR FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
    ~FScopedTransaction();

    void Cancel();
};
