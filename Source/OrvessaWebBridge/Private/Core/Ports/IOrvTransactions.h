#pragma once

#include <string_view>

namespace OrvWebBridge
{
    /** @brief The editor's undo buffer (FScopedTransaction). Game thread. */
    class IOrvTransactions
    {
    public:
        virtual ~IOrvTransactions() = default;

        /** Opens an undo transaction under a description such as "Orv MCP: Move Actor". */
        virtual void BeginTransaction(std::string_view Description) = 0;

        /** Closes the transaction opened last; what was modified since is one undo step. */
        virtual void EndTransaction() = 0;
    };

    /** @brief Keeps one transaction open for the life of the scope, like FScopedTransaction. */
    class FOrvScopedTransaction
    {
    public:
        FOrvScopedTransaction(IOrvTransactions& InTransactions, std::string_view Description)
            : Transactions(InTransactions)
        {
            Transactions.BeginTransaction(Description);
        }
        ~FOrvScopedTransaction() { Transactions.EndTransaction(); }

        FOrvScopedTransaction(const FOrvScopedTransaction&) = delete;
        FOrvScopedTransaction& operator=(const FOrvScopedTransaction&) = delete;

    private:
        IOrvTransactions& Transactions;
    };
} // namespace OrvWebBridge
