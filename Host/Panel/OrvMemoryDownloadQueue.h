#pragma once

#include "Core/Ports/IOrvCatalogAccount.h"
#include "Core/Ports/IOrvTimers.h"

#include <functional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief The host's download queue: works through its entries one at a time, each over about a second
     * of simulated progress, and reports as the maker's download manager does: queue updated (with what is
     * left, possibly nothing), progress from 0 to 1, and finished once the queue has run dry.
     */
    class FOrvMemoryDownloadQueue
    {
    public:
        static constexpr double TickSeconds = 0.1;

        /** OnDownloaded runs when an entry completes, before the queue reports what is left. */
        FOrvMemoryDownloadQueue(IOrvTimers& InTimers,
                                std::function<void(const FOrvDownloadQueueEntry&)> InOnDownloaded)
            : Timers(InTimers), OnDownloaded(std::move(InOnDownloaded))
        {
        }
        ~FOrvMemoryDownloadQueue() { Timers.ClearTimer(Timer); }
        FOrvMemoryDownloadQueue(const FOrvMemoryDownloadQueue&) = delete;
        FOrvMemoryDownloadQueue& operator=(const FOrvMemoryDownloadQueue&) = delete;

        void SetEvents(IOrvCatalogAccountEvents* InEvents) { Events = InEvents; }

        /** Adds an entry at the end and starts working if idle. */
        void Enqueue(FOrvDownloadQueueEntry Entry);

        /** Drops every entry without reporting (the user signed out). */
        void Cancel();

        bool Contains(std::string_view AssetId) const;
        const std::vector<FOrvDownloadQueueEntry>& GetEntries() const { return Entries; }

    private:
        void Tick();

        IOrvTimers& Timers;
        std::function<void(const FOrvDownloadQueueEntry&)> OnDownloaded;
        IOrvCatalogAccountEvents* Events = nullptr;
        std::vector<FOrvDownloadQueueEntry> Entries;
        FOrvTimerHandle Timer;
        int Ticks = 0; ///< of the current download
    };
} // namespace OrvWebBridge
