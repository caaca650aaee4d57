#pragma once

// Engine: Runtime/Core/Public/Templates/Function.h (module Core). Both bind any callable whose call with
// the declared parameters yields the declared result; TUniqueFunction is move-only and may hold move-only
// callables.
// Templates that take a lambda have an empty body: a lambda's type has no linkage, so clang insists on one.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TFunction

#include <cstddef>
#include <type_traits>

template <typename FuncType> class TFunction;
template <typename FuncType> class TUniqueFunction;

template <typename Ret, typename... ParamTypes> class TFunction<Ret(ParamTypes...)>
{
public:
    TFunction(std::nullptr_t = nullptr);
    template <typename FunctorType>
    requires(!std::is_same_v<std::decay_t<FunctorType>, TFunction> &&
             std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>)
        TFunction(FunctorType&& Functor)
    {
    }
    TFunction(const TFunction& Other);
    TFunction(TFunction&& Other);
    TFunction& operator=(const TFunction& Other);
    TFunction& operator=(TFunction&& Other);
    ~TFunction();

    Ret operator()(ParamTypes... Params) const;
    explicit operator bool() const;
};

template <typename Ret, typename... ParamTypes> class TUniqueFunction<Ret(ParamTypes...)>
{
public:
    TUniqueFunction(std::nullptr_t = nullptr);
    template <typename FunctorType>
    requires(!std::is_same_v<std::decay_t<FunctorType>, TUniqueFunction> &&
             std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>)
        TUniqueFunction(FunctorType&& Functor)
    {
    }
    TUniqueFunction(TUniqueFunction&& Other);
    TUniqueFunction(const TUniqueFunction&) = delete;
    TUniqueFunction& operator=(TUniqueFunction&& Other);
    ~TUniqueFunction();

    Ret operator()(ParamTypes... Params) const;
    explicit operator bool() const;
};
