#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

#include "Core/Ports/IOrvTransactions.h"

class FScopedTransaction;

namespace OrvWebBridge
{
    /**
     * @brief IOrvTransactions over FScopedTransaction: each Begin pushes one onto a stack, each End pops
     * (and so ends) the newest. Whatever is still open when the adapter goes is ended newest first.
     */
    class FOrvUnrealTransactions final : public IOrvTransactions
    {
    public:
        FOrvUnrealTransactions();
        virtual ~FOrvUnrealTransactions() override;

        virtual void BeginTransaction(std::string_view Description) override;
        virtual void EndTransaction() override;

    private:
        TArray<TUniquePtr<FScopedTransaction>> Open;
    };
} // namespace OrvWebBridge
