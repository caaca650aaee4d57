// Correct uses of the declared engine surface and, one per ORV_PROBE_* name, a fault that the Unreal-side
// check must refuse. Tests/Unreal/check-surface-probes.sh compiles it once plain and once per fault.

#include "OrvProbeObject.h"

#include "CoreMinimal.h"
#include "Editor.h"
#include "Engine/World.h"
#include "TimerManager.h"
#include "Widgets/SCompoundWidget.h"

#if defined(ORV_PROBE_UNDECLARED_HEADER)
#include "Subsystems/EditorActorSubsystem.h"
#endif
#if defined(ORV_PROBE_CLOSED_HEADER)
#include "OrvProductData.h"
#endif

DECLARE_DELEGATE_OneParam(FOnProbePicked, int32);

class SOrvProbeWidget : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SOrvProbeWidget) : _Count(0) {}
    SLATE_ARGUMENT(int32, Count)
    SLATE_ATTRIBUTE(FText, Label)
    SLATE_EVENT(FOnProbePicked, OnPicked)
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_END_ARGS()

    void Construct(const FArguments& InArgs);
};

class FOrvProbeUser
{
public:
    void Tick();
    void OnSpawned(AActor* Actor);

    void Use(UWorld& World, AActor* Actor, UOrvProbeObject* Object)
    {
        FString Name = Actor->GetName();
        UE_LOG(LogTemp, Log, TEXT("%s at %d%%"), *Name, 3);
        GEditor->SelectActor(Actor, /*bInSelected=*/true, /*bNotify=*/false);
        World.AddOnActorSpawnedHandler(
            FOnActorSpawned::FDelegate::CreateRaw(this, &FOrvProbeUser::OnSpawned));
        World.AddOnActorSpawnedHandler(FOnActorSpawned::FDelegate::CreateLambda([](AActor*) {}));
        World.AddOnActorSpawnedHandler(
            FOnActorSpawned::FDelegate::CreateUObject(Object, &UOrvProbeObject::OnSpawned));
        FTimerHandle Handle;
        World.GetTimerManager().SetTimer(Handle, FTimerDelegate::CreateRaw(this, &FOrvProbeUser::Tick), 0.5f);
        const TSharedRef<SWidget> Widget = SNew(SOrvProbeWidget)
                                               .Count(3)
                                               .Label(FText::FromString(Name))
                                               .OnPicked_Lambda([](int32 Index) {})[SNew(SOrvProbeWidget)];
        using FProbeSuper = UOrvProbeObject::Super;
        static_assert(std::is_same_v<FProbeSuper, UObject>);
        FString Moved = MoveTemp(Name);

#if defined(ORV_PROBE_UNDECLARED_MEMBER)
        GEditor->GetSelectedComponents();
#endif
#if defined(ORV_PROBE_MISSING_ARGUMENT)
        GEditor->SelectActor(Actor, true);
#endif
#if defined(ORV_PROBE_LOG_FSTRING)
        UE_LOG(LogTemp, Log, TEXT("%s"), Moved);
#endif
#if defined(ORV_PROBE_LOG_COUNT)
        UE_LOG(LogTemp, Warning, TEXT("%s has %d"), *Moved);
#endif
#if defined(ORV_PROBE_LOG_VERBOSITY)
        UE_LOG(LogTemp, Info, TEXT("ready"));
#endif
#if defined(ORV_PROBE_LAMBDA_SIGNATURE)
        World.AddOnActorSpawnedHandler(
            FOnActorSpawned::FDelegate::CreateLambda([](const AActor& Spawned) {}));
#endif
#if defined(ORV_PROBE_METHOD_SIGNATURE)
        World.GetTimerManager().SetTimer(Handle, FTimerDelegate::CreateRaw(this, &FOrvProbeUser::OnSpawned),
                                         0.5f);
#endif
#if defined(ORV_PROBE_SLATE_NAME)
        SNew(SOrvProbeWidget).Cuont(3);
#endif
#if defined(ORV_PROBE_SLATE_TYPE)
        SNew(SOrvProbeWidget).Count(TEXT("three"));
#endif
#if defined(ORV_PROBE_MOVE_CONST)
        const FString Fixed = Moved;
        FString Stolen = MoveTemp(Fixed);
#endif
#if defined(ORV_PROBE_FLAG_TYPO)
#if ORV_WITH_CLOSED_MODULE
        Tick();
#endif
#endif
    }
};
