// orv-host injects this script into every HTML page of the catalogue panel. It gives the page what the
// editor's embedded browser gives it: window.ue.orvbridge, whose functions return Promises, and the
// channel over which the editor runs its scripts in the page (events, reloads, navigation).
(function () {
    "use strict";
    if (window.ue && window.ue.orvbridge) {
        return;
    }
    const FunctionNames = /*ORV_FUNCTION_NAMES*/ [];

    async function Call(Name, Args) {
        const Response = await fetch("/__orv/call", {
            method: "POST",
            headers: { "Content-Type": "application/json" },
            body: JSON.stringify({ function: Name, args: Args.map((Arg) => (Arg === undefined ? null : Arg)) }),
        });
        let Answer = null;
        try {
            Answer = await Response.json();
        } catch {
            Answer = null;
        }
        if (!Response.ok || !Answer || !("result" in Answer)) {
            throw new Error((Answer && Answer.error) || `OrvBridge.${Name}: HTTP ${Response.status}`);
        }
        return Answer.result === null ? undefined : Answer.result;
    }

    const Bridge = {};
    for (const Name of FunctionNames) {
        Bridge[Name] = (...Args) => Call(Name, Args);
    }
    window.ue = window.ue || {};
    window.ue.orvbridge = Object.freeze(Bridge);

    // The sign-in popup only reports where it is; the panel page is the one that listens.
    const Popup = /^orv-oauth-popup-(\d+)$/.exec(window.name);
    if (Popup) {
        const Report = () =>
            fetch("/__orv/popup-url", {
                method: "POST",
                headers: { "Content-Type": "application/json" },
                body: JSON.stringify({ id: Number(Popup[1]), url: location.href }),
            }).catch(() => {});
        if (document.readyState === "loading") {
            document.addEventListener("DOMContentLoaded", Report);
        } else {
            Report();
        }
        window.addEventListener("hashchange", Report);
        return;
    }

    // Messages run one after the other, in the order the editor sent them.
    let Chain = Promise.resolve();
    const Popups = new Map();
    const SyncCookies = () => fetch("/__orv/cookies", { method: "POST" });
    const Handlers = {
        script: (Script) => (0, eval)(Script),
        navigate: (Url) => location.assign(Url),
        cookies: () => SyncCookies(),
        "popup-open": (Data) => {
            const { id: Id, url: Url } = JSON.parse(Data);
            Popups.set(String(Id), window.open(Url, `orv-oauth-popup-${Id}`, "popup,width=520,height=680"));
        },
        "popup-close": (Id) => {
            const Window = Popups.get(Id);
            Popups.delete(Id);
            if (Window && !Window.closed) {
                Window.close();
            }
        },
    };
    const Events = new EventSource(`/__orv/events?page=${encodeURIComponent(location.href)}`);
    for (const [Kind, Handle] of Object.entries(Handlers)) {
        Events.addEventListener(Kind, (Event) => {
            Chain = Chain.then(() => Handle(Event.data)).catch((Error) => console.error(Error));
        });
    }
    // Cookies the editor set while no page listened arrive as soon as one does; what else the page shows
    // of the editor's state can catch up then too.
    Events.addEventListener("open", () => {
        Chain = Chain.then(SyncCookies).catch((Error) => console.error(Error));
        window.dispatchEvent(new Event("orv-panel-connected"));
    });
})();
