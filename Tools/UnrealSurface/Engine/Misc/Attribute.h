#pragma once

// Engine: Runtime/Core/Public/Misc/Attribute.h (module Core). A value, or a getter read each time it is
// needed; made from anything that converts to the value type.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TAttribute

#include <type_traits>

template <typename ObjectType> class TAttribute
{
public:
    TAttribute();
    template <typename OtherType>
    requires(std::is_convertible_v<OtherType, ObjectType>) TAttribute(const OtherType& InInitialValue);

    template <typename FunctorType>
    requires(std::is_invocable_r_v<ObjectType, std::decay_t<FunctorType>&>) [[nodiscard]] static TAttribute
        CreateLambda(FunctorType&& InFunctor)
    {
        return TAttribute();
    }

    const ObjectType& Get() const;
    bool IsSet() const;
};
