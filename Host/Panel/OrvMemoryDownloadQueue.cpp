#include "Host/Panel/OrvMemoryDownloadQueue.h"

#include <algorithm>

namespace OrvWebBridge
{
    namespace
    {
        constexpr int TicksPerDownload = 10;
    } // namespace

    void FOrvMemoryDownloadQueue::Enqueue(FOrvDownloadQueueEntry Entry)
    {
        Entries.push_back(std::move(Entry));
        if (Events)
        {
            Events->OnDownloadQueueUpdated(Entries);
        }
        if (!Timer.IsValid())
        {
            Ticks = 0;
            Timer = Timers.SetTimer(TickSeconds, [this] { Tick(); });
        }
    }

    void FOrvMemoryDownloadQueue::Cancel()
    {
        Entries.clear();
        Timers.ClearTimer(Timer);
    }

    bool FOrvMemoryDownloadQueue::Contains(std::string_view AssetId) const
    {
        return std::any_of(Entries.begin(), Entries.end(),
                           [AssetId](const FOrvDownloadQueueEntry& Entry)
                           { return Entry.AssetId == AssetId; });
    }

    void FOrvMemoryDownloadQueue::Tick()
    {
        Timer = {};
        if (Entries.empty())
        {
            return;
        }
        ++Ticks;
        if (Events)
        {
            Events->OnDownloadProgress(static_cast<double>(Ticks) / TicksPerDownload);
        }
        if (Ticks < TicksPerDownload)
        {
            Timer = Timers.SetTimer(TickSeconds, [this] { Tick(); });
            return;
        }
        const FOrvDownloadQueueEntry Done = Entries.front();
        Entries.erase(Entries.begin());
        Ticks = 0;
        OnDownloaded(Done);
        if (Events)
        {
            Events->OnDownloadQueueUpdated(Entries);
        }
        if (!Entries.empty())
        {
            Timer = Timers.SetTimer(TickSeconds, [this] { Tick(); });
        }
        else if (Events)
        {
            Events->OnDownloadQueueFinished();
        }
    }
} // namespace OrvWebBridge
