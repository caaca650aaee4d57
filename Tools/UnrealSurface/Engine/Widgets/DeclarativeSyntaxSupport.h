#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/DeclarativeSyntaxSupport.h (module SlateCore).
// Docs: none for the macros themselves; the engine header is the reference.
//
// The declarative syntax, checked as the engine's templates check it: SNew(T) builds T::FArguments and
// hands it to T::Construct (with any required arguments after it), so an argument the widget does not
// declare, a value of the wrong type, a lambda with the wrong signature for an event or a widget without
// a matching Construct all fail to compile. The macros declare the setters the engine's do, named
// ArgName(...), and for events EventName_Lambda/_Raw/_SP/_UObject/_Static, for attributes
// AttrName_Lambda.

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "SlotBase.h"
#include "Widgets/SWidget.h"

#include <type_traits>

/** The named arguments every widget takes. */
template <typename WidgetType> struct TSlateBaseNamedArgs
{
    typedef typename WidgetType::FArguments WidgetArgsType;

    WidgetArgsType& ToolTipText(const TAttribute<FText>& InToolTipText);
    WidgetArgsType& Visibility(const TAttribute<EVisibility>& InVisibility);
    WidgetArgsType& IsEnabled(const TAttribute<bool>& InIsEnabled);

    // The engine declares these three as attributes, so each also takes a getter (Name_Lambda).
#define ORV_SURFACE_BASE_ATTRIBUTE_LAMBDA(AttrType, AttrName)                                                \
    template <typename FunctorType>                                                                          \
    requires(std::is_invocable_r_v<AttrType, std::decay_t<FunctorType>&>)                                    \
        WidgetArgsType& AttrName##_Lambda(FunctorType&& InFunctor)                                           \
    {                                                                                                        \
        return *static_cast<WidgetArgsType*>(this);                                                          \
    }
    ORV_SURFACE_BASE_ATTRIBUTE_LAMBDA(FText, ToolTipText)
    ORV_SURFACE_BASE_ATTRIBUTE_LAMBDA(EVisibility, Visibility)
    ORV_SURFACE_BASE_ATTRIBUTE_LAMBDA(bool, IsEnabled)
#undef ORV_SURFACE_BASE_ATTRIBUTE_LAMBDA
};

#define SLATE_BEGIN_ARGS(WidgetType)                                                                         \
public:                                                                                                      \
    struct FArguments : public TSlateBaseNamedArgs<WidgetType>                                               \
    {                                                                                                        \
        typedef FArguments WidgetArgsType;                                                                   \
        FArguments()

#define SLATE_END_ARGS()                                                                                     \
    }                                                                                                        \
    ;

#define SLATE_ARGUMENT(ArgType, ArgName)                                                                     \
    ArgType _##ArgName;                                                                                      \
    WidgetArgsType& ArgName(ArgType InArg);

#define SLATE_ATTRIBUTE(AttrType, AttrName)                                                                  \
    TAttribute<AttrType> _##AttrName;                                                                        \
    WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute);                                              \
    template <typename FunctorType>                                                                          \
    requires(std::is_invocable_r_v<AttrType, std::decay_t<FunctorType>&>)                                    \
        WidgetArgsType& AttrName##_Lambda(FunctorType&& InFunctor)                                           \
    {                                                                                                        \
        return *this;                                                                                        \
    }

/** One EventName_<Kind> setter: takes what DelegateName::Create<Kind> takes. */
#define ORV_SURFACE_EVENT_SETTER(DelegateName, EventName, Kind)                                              \
    template <typename... ArgTypes>                                                                          \
    requires(::OrvSurface::CCreate##Kind<DelegateName, ArgTypes...>)                                         \
        WidgetArgsType& EventName##_##Kind(ArgTypes&&... Args)                                               \
    {                                                                                                        \
        return *this;                                                                                        \
    }

#define SLATE_EVENT(DelegateName, EventName)                                                                 \
    DelegateName _##EventName;                                                                               \
    WidgetArgsType& EventName(const DelegateName& InDelegate);                                               \
    /* EventName(this, &SMyWidget::Handler): bound to the widget through its shared pointer (CreateSP). */   \
    template <typename... ArgTypes>                                                                          \
    requires(sizeof...(ArgTypes) >= 2 && ::OrvSurface::CCreateSP<DelegateName, ArgTypes...>) WidgetArgsType& \
    EventName(ArgTypes&&... Args)                                                                            \
    {                                                                                                        \
        return *this;                                                                                        \
    }                                                                                                        \
    ORV_SURFACE_EVENT_SETTER(DelegateName, EventName, Lambda)                                                \
    ORV_SURFACE_EVENT_SETTER(DelegateName, EventName, Raw)                                                   \
    ORV_SURFACE_EVENT_SETTER(DelegateName, EventName, SP)                                                    \
    ORV_SURFACE_EVENT_SETTER(DelegateName, EventName, UObject)                                               \
    ORV_SURFACE_EVENT_SETTER(DelegateName, EventName, Static)

/** The unnamed content slot: Args[ SNew(...) ]. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName)                                                        \
    DeclarationType& operator[](const TSharedRef<SWidget>& InChild);

/** A named content slot: Args.SlotName()[ SNew(...) ]. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName) ::OrvSurface::TNamedSlot<DeclarationType> SlotName();

/** Slots added with "+ SPanel::Slot()". */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName)                                                              \
    WidgetArgsType& operator+(typename SlotType::FSlotArguments& SlotToAdd);                                 \
    WidgetArgsType& operator+(typename SlotType::FSlotArguments&& SlotToAdd);

namespace OrvSurface
{
    /** Whether the widget has a Construct taking these arguments and the required ones after them. */
    template <typename WidgetType, typename ArgumentsType, typename... RequiredArgTypes>
    concept CConstructs = requires(WidgetType& Widget, const ArgumentsType& Args,
                                   const RequiredArgTypes&... Required)
    {
        Widget.Construct(Args, Required...);
    };

    template <typename DeclarationType> struct TNamedSlot
    {
        DeclarationType& operator[](const TSharedRef<SWidget>& InChild);
    };

    /** What SNew makes: "<<= FArguments" constructs the widget with them and any required arguments. */
    template <typename WidgetType, typename... RequiredArgTypes> struct TWidgetDecl
    {
        template <typename ExposeType>
        requires(std::is_convertible_v<WidgetType*, ExposeType*>)
            TWidgetDecl& Expose(TSharedPtr<ExposeType>& OutVarToInit);

        TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) const
            requires(CConstructs<WidgetType, typename WidgetType::FArguments, RequiredArgTypes...>);
    };

    template <typename WidgetType, typename... RequiredArgTypes>
    TWidgetDecl<WidgetType, std::decay_t<RequiredArgTypes>...> MakeDecl(RequiredArgTypes&&... Required);
} // namespace OrvSurface

#define SNew(WidgetType, ...) ::OrvSurface::MakeDecl<WidgetType>(__VA_ARGS__) <<= WidgetType::FArguments()
#define SAssignNew(ExposeAs, WidgetType, ...)                                                                \
    ::OrvSurface::MakeDecl<WidgetType>(__VA_ARGS__).Expose(ExposeAs) <<= WidgetType::FArguments()
