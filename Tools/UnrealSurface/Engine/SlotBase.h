#pragma once

// Engine: Runtime/SlateCore/Public/SlotBase.h (module SlateCore): what every slot's arguments share, the
// "[ widget ]" that fills the slot. A panel declares its slot as
//     class FSlot : public TSlotBase<FSlot> { SLATE_SLOT_BEGIN_ARGS(FSlot, TSlotBase<FSlot>) ...
//     SLATE_SLOT_END_ARGS() };
// with the slot's own setters between the two macros (see Tools/UnrealSurface/README.md).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/TSlotBase

#include "Widgets/SWidget.h"

template <typename SlotType> class TSlotBase
{
public:
    template <typename SlotArgumentsType> struct TSlotArgumentsBase
    {
        SlotArgumentsType& operator[](const TSharedRef<SWidget>& InChildWidget);
    };
};

#define SLATE_SLOT_BEGIN_ARGS(SlotType, SlotParentType)                                                      \
public:                                                                                                      \
    struct FSlotArguments : public SlotParentType::template TSlotArgumentsBase<FSlotArguments>               \
    {                                                                                                        \
        typedef FSlotArguments WidgetArgsType;

#define SLATE_SLOT_END_ARGS()                                                                                \
    }                                                                                                        \
    ;
