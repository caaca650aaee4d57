#pragma once

// Engine: Runtime/Core/Public/Delegates/Delegate.h and DelegateSignatureImpl.inl (module Core).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Core/TDelegateRegistration_InRetValTy-
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Core/TDelegateRegistration_InRetValTy-/BindRaw
//
// A stand-in that checks what the engine's templates check: a lambda must be callable with the delegate's
// parameters (then any payload) and give its result; a method bound with Raw, SP or UObject must have
// exactly the delegate's signature (payload types appended), const when the object is const; SP binding
// from a raw pointer needs a TSharedFromThis class. Only the DECLARE_* forms at the end of this file exist.
// What a lambda can reach has an empty body (a lambda's type has no linkage, so clang insists on one).

#include "Delegates/IDelegateInstance.h"
#include "HAL/Platform.h"
#include "Templates/SharedPointer.h"

#include <type_traits>

struct FDefaultDelegateUserPolicy
{
};

// Whether DelegateType::Create<Kind>(Args...) is well-formed: what Bind<Kind>, Add<Kind> and Slate's
// Event_<Kind> setters accept. CCreateLambda, CCreateStatic, CCreateRaw, CCreateSP, CCreateUObject.
#define ORV_SURFACE_CREATE_CONCEPT(Kind)                                                                     \
    template <typename DelegateType, typename... ArgTypes>                                                   \
    concept CCreate##Kind = requires(ArgTypes && ... Args)                                                   \
    {                                                                                                        \
        DelegateType::Create##Kind(static_cast<ArgTypes&&>(Args)...);                                        \
    };

namespace OrvSurface
{
    template <bool bConst, typename Class, typename FuncType> struct TMemFunPtrType;
    template <typename Class, typename Ret, typename... Args>
    struct TMemFunPtrType<false, Class, Ret(Args...)>
    {
        using Type = Ret (Class::*)(Args...);
    };
    template <typename Class, typename Ret, typename... Args> struct TMemFunPtrType<true, Class, Ret(Args...)>
    {
        using Type = Ret (Class::*)(Args...) const;
    };

    /** The method pointer type a delegate of FuncType accepts for an object of UserClass. */
    template <typename UserClass, typename FuncType>
    using TMethodFor =
        typename TMemFunPtrType<std::is_const_v<UserClass>, std::remove_const_t<UserClass>, FuncType>::Type;

    template <typename UserClass>
    concept CSharedFromThis = requires(UserClass* Object)
    {
        Object->AsShared();
    };

    ORV_SURFACE_CREATE_CONCEPT(Lambda)
    ORV_SURFACE_CREATE_CONCEPT(Static)
    ORV_SURFACE_CREATE_CONCEPT(Raw)
    ORV_SURFACE_CREATE_CONCEPT(SP)
    ORV_SURFACE_CREATE_CONCEPT(UObject)
#undef ORV_SURFACE_CREATE_CONCEPT
} // namespace OrvSurface

template <typename FuncType, typename UserPolicy = FDefaultDelegateUserPolicy> class TDelegate;

template <typename RetType, typename... ParamTypes, typename UserPolicy>
class TDelegate<RetType(ParamTypes...), UserPolicy>
{
    template <typename... VarTypes> using TBoundType = RetType(ParamTypes..., std::decay_t<VarTypes>...);

public:
    TDelegate();
    TDelegate(const TDelegate& Other);
    TDelegate& operator=(const TDelegate& Other);
    ~TDelegate();

    template <typename FunctorType, typename... VarTypes>
    requires(std::is_invocable_r_v<RetType, std::decay_t<FunctorType>&, ParamTypes..., VarTypes...>)
        [[nodiscard]] static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
    {
        return TDelegate();
    }

    template <typename... VarTypes>
    [[nodiscard]] static TDelegate CreateStatic(TBoundType<VarTypes...>* InFunc, VarTypes&&... Vars);

    template <typename UserClass, typename... VarTypes>
    [[nodiscard]] static TDelegate
    CreateRaw(UserClass* InUserObject, OrvSurface::TMethodFor<UserClass, TBoundType<VarTypes...>> InFunc,
              VarTypes&&... Vars);

    template <typename UserClass, ESPMode Mode, typename... VarTypes>
    [[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObjectRef,
                                            OrvSurface::TMethodFor<UserClass, TBoundType<VarTypes...>> InFunc,
                                            VarTypes&&... Vars);

    template <typename UserClass, typename... VarTypes>
    requires(OrvSurface::CSharedFromThis<UserClass>) [[nodiscard]] static TDelegate
        CreateSP(UserClass* InUserObject, OrvSurface::TMethodFor<UserClass, TBoundType<VarTypes...>> InFunc,
                 VarTypes&&... Vars);

    template <typename UserClass, typename... VarTypes>
    [[nodiscard]] static TDelegate
    CreateUObject(UserClass* InUserObject, OrvSurface::TMethodFor<UserClass, TBoundType<VarTypes...>> InFunc,
                  VarTypes&&... Vars);

    // BindLambda, BindRaw, BindSP, BindUObject: what the matching Create accepts.
#define ORV_SURFACE_BIND(Kind)                                                                               \
    template <typename... ArgTypes>                                                                          \
    requires(OrvSurface::CCreate##Kind<TDelegate, ArgTypes...>) void Bind##Kind(ArgTypes&&... Args) {}
    ORV_SURFACE_BIND(Lambda)
    ORV_SURFACE_BIND(Raw)
    ORV_SURFACE_BIND(SP)
    ORV_SURFACE_BIND(UObject)
#undef ORV_SURFACE_BIND

    bool IsBound() const;
    void Unbind();
    RetType Execute(ParamTypes... Params) const;
    bool ExecuteIfBound(ParamTypes... Params) const requires(std::is_void_v<RetType>);
};

template <typename FuncType, typename UserPolicy = FDefaultDelegateUserPolicy> class TMulticastDelegate;

template <typename... ParamTypes, typename UserPolicy>
class TMulticastDelegate<void(ParamTypes...), UserPolicy>
{
public:
    using FDelegate = TDelegate<void(ParamTypes...), UserPolicy>;

    FDelegateHandle Add(const FDelegate& InNewDelegate);
    // AddLambda, AddStatic, AddRaw, AddSP, AddUObject: what the matching FDelegate::Create accepts.
#define ORV_SURFACE_ADD(Kind)                                                                                \
    template <typename... ArgTypes>                                                                          \
    requires(OrvSurface::CCreate##Kind<FDelegate, ArgTypes...>)                                              \
        FDelegateHandle Add##Kind(ArgTypes&&... Args)                                                        \
    {                                                                                                        \
        return FDelegateHandle();                                                                            \
    }
    ORV_SURFACE_ADD(Lambda)
    ORV_SURFACE_ADD(Static)
    ORV_SURFACE_ADD(Raw)
    ORV_SURFACE_ADD(SP)
    ORV_SURFACE_ADD(UObject)
#undef ORV_SURFACE_ADD

    bool Remove(FDelegateHandle Handle);
    int32 RemoveAll(const void* InUserObject);
    bool IsBound() const;
    void Broadcast(ParamTypes... Params) const;
};

// Parameter types only, as in the engine's macros.
#define DECLARE_DELEGATE(DelegateName) typedef TDelegate<void()> DelegateName;
#define DECLARE_DELEGATE_OneParam(DelegateName, P1) typedef TDelegate<void(P1)> DelegateName;
#define DECLARE_DELEGATE_TwoParams(DelegateName, P1, P2) typedef TDelegate<void(P1, P2)> DelegateName;
#define DECLARE_DELEGATE_ThreeParams(DelegateName, P1, P2, P3)                                               \
    typedef TDelegate<void(P1, P2, P3)> DelegateName;
#define DECLARE_DELEGATE_FourParams(DelegateName, P1, P2, P3, P4)                                            \
    typedef TDelegate<void(P1, P2, P3, P4)> DelegateName;
#define DECLARE_DELEGATE_RetVal(R, DelegateName) typedef TDelegate<R()> DelegateName;
#define DECLARE_DELEGATE_RetVal_OneParam(R, DelegateName, P1) typedef TDelegate<R(P1)> DelegateName;
#define DECLARE_DELEGATE_RetVal_TwoParams(R, DelegateName, P1, P2) typedef TDelegate<R(P1, P2)> DelegateName;
#define DECLARE_MULTICAST_DELEGATE(DelegateName) typedef TMulticastDelegate<void()> DelegateName;
#define DECLARE_MULTICAST_DELEGATE_OneParam(DelegateName, P1)                                                \
    typedef TMulticastDelegate<void(P1)> DelegateName;
#define DECLARE_MULTICAST_DELEGATE_TwoParams(DelegateName, P1, P2)                                           \
    typedef TMulticastDelegate<void(P1, P2)> DelegateName;
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(DelegateName, P1, P2, P3)                                     \
    typedef TMulticastDelegate<void(P1, P2, P3)> DelegateName;

// Delegates/DelegateCombinations.h declares these two for the whole engine.
DECLARE_DELEGATE(FSimpleDelegate)
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate)
