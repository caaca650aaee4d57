#pragma once

// A reflected class as our sources write them, for the Unreal-side check's own tests.

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "OrvProbeObject.generated.h"

class AActor;

UCLASS()
class UOrvProbeObject : public UObject
{
    GENERATED_BODY()

public:
    UFUNCTION()
    void OnSpawned(AActor* Actor);
};
