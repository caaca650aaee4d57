#pragma once

// A reflected class whose header forgot its generated include: the header tool refuses it.

#include "CoreMinimal.h"
#include "UObject/Object.h"

UCLASS()
class UOrvProbeForgotten : public UObject
{
    GENERATED_BODY()
};
