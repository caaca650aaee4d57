// Benchmark of the catalogue panel in headless Chromium, against a bare fetch to the same server as anchor:
//   call:  a bridge call's round trip from the page (window.ue.orvbridge.iscoreauthorized())
//   event: from the page's testorveventbus() call until the editor's event script runs __orv_emit
//          (the call reaches the core, the event goes out over the page's event stream, the page runs it)
//   anchor: fetch("/__orv/health") and read its body
// The three are measured in turn, sample by sample, so that drift affects them alike; p50 and p99 are
// printed with their ratio to the anchor's (target: 1.5 or less). Use a Release host:
//   ORV_HOST=build-release/orv-host node Benchmarks/panel-benchmark.mjs [SAMPLES]
import { InstallRecorder, LaunchBrowser, StartHost } from "../Tests/Browser/support.mjs";

const Samples = Number(process.argv[2] || 2000);
const Host = await StartHost();
const Chromium = await LaunchBrowser();
try {
    const Page = await Chromium.Browser.newPage();
    await Page.goto(Host.PanelUrl);
    await InstallRecorder(Page);
    const Timings = await Page.evaluate(async (Count) => {
        const Bridge = window.ue.orvbridge;
        let Received = null;
        window.__orv_emit = (Name) => {
            if (Name === "orvbus.test" && Received) {
                Received(performance.now());
            }
        };
        const Measure = {
            anchor: async () => {
                const Start = performance.now();
                await (await fetch("/__orv/health")).text();
                return performance.now() - Start;
            },
            call: async () => {
                const Start = performance.now();
                await Bridge.iscoreauthorized();
                return performance.now() - Start;
            },
            event: async () => {
                const Arrived = new Promise((Resolve) => (Received = Resolve));
                const Start = performance.now();
                const Answered = Bridge.testorveventbus();
                const End = await Arrived;
                await Answered;
                Received = null;
                return End - Start;
            },
        };
        const Results = { anchor: [], call: [], event: [] };
        const Kinds = Object.keys(Measure);
        for (let Round = 0; Round < Count + 100; ++Round) {
            for (const Kind of Kinds) {
                const Time = await Measure[Kind]();
                if (Round >= 100) { // the first rounds warm up the connection pool and the JIT
                    Results[Kind].push(Time);
                }
            }
        }
        return Results;
    }, Samples);

    const Percentile = (Values, P) => {
        const Sorted = [...Values].sort((A, B) => A - B);
        return Sorted[Math.min(Sorted.length - 1, Math.floor((P / 100) * Sorted.length))];
    };
    const Row = (Kind) => {
        const [P50, P99] = [Percentile(Timings[Kind], 50), Percentile(Timings[Kind], 99)];
        const [A50, A99] = [Percentile(Timings.anchor, 50), Percentile(Timings.anchor, 99)];
        return `${Kind.padEnd(7)} p50 ${P50.toFixed(3).padStart(7)} ms (${(P50 / A50).toFixed(2)}x)   p99 ${P99.toFixed(3).padStart(7)} ms (${(P99 / A99).toFixed(2)}x)`;
    };
    console.log(`catalogue panel, ${Samples} samples each, ratios to the anchor (target <= 1.50x)`);
    for (const Kind of ["anchor", "call", "event"]) {
        console.log(Row(Kind));
    }
} finally {
    await Chromium.Close();
    await Host.Stop();
}
