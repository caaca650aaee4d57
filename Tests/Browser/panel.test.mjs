// The catalogue panel of "orv-host serve" in headless Chromium: the bridge as a page sees it, the events,
// the sign-in session and its cookies, the OAuth popup, the demo site as a user drives it, and who may
// talk to the panel. Run: ORV_HOST=path/to/orv-host node panel.test.mjs
import { after, before, describe, it } from "node:test";
import assert from "node:assert/strict";
import http from "node:http";
import { InstallRecorder, LaunchBrowser, OpenPanel, StartHost, WaitFor } from "./support.mjs";

const Bridge = (Page, Name, ...Args) => Page.evaluate((N, A) => window.ue.orvbridge[N](...A), Name, Args);
const Events = (Page) => Page.evaluate(() => window.__events);
const Cookies = async (Page) => (await Page.browserContext().cookies()).map((Cookie) => Cookie.name).sort();

let Chromium;
before(async () => {
    Chromium = await LaunchBrowser();
});
after(async () => {
    await Chromium?.Close();
});

/** A host of its own for a group of tests, with a page of its panel (connected, when bConnected). */
function UseHost({ bConnected = true } = {}) {
    const Context = {};
    before(async () => {
        Context.Host = await StartHost();
        Context.Page = bConnected ? await OpenPanel(Chromium.Browser, Context.Host.PanelUrl) : await Chromium.Browser.newPage();
    });
    after(async () => {
        await Context.Page?.close();
        await Context.Host?.Stop();
    });
    return Context;
}

describe("the bridge in a page of the panel", () => {
    const Context = UseHost();
    let Host;
    let Page;
    before(() => ({ Host, Page } = Context));

    it("has the fifteen functions with lower-case names, each returning a Promise", async () => {
        const Shape = await Page.evaluate(() =>
            Object.keys(window.ue.orvbridge).map((Name) => [Name, window.ue.orvbridge[Name]("x", "y").catch(() => {}) instanceof Promise]),
        );
        assert.deepEqual(Shape.map(([Name]) => Name), ["addassetdownload", "addproducttoproject", "clearlibrarydata",
            "getlibraryinfo", "getuserdetails", "iscoreauthorized", "logoutuser", "openexternalurl", "openoauthpopup",
            "refreshpanel", "removeproductfromlibrary", "setsessiontoken", "signin", "testorveventbus", "triggerauthcheck"]);
        assert.ok(Shape.every(([, IsPromise]) => IsPromise));
    });

    it("rejects wrong argument counts and types with a clear message and changes nothing", async () => {
        const Rejection = (Name, ...Args) =>
            Page.evaluate((N, A) => window.ue.orvbridge[N](...A).then(() => "resolved", (Error) => Error.message), Name, Args);
        assert.equal(await Rejection("signin", "demo"), "signin(Username, Password) takes 2 arguments, got 1");
        assert.equal(await Rejection("addassetdownload", "FNV-CH-1102", undefined),
            "addassetdownload(AssetID, AssetType): AssetType must be a string, got null or undefined");
        assert.equal(await Bridge(Page, "iscoreauthorized"), false);
    });

    it("carries the sign-in state through iscoreauthorized, the user and the library", async () => {
        await Bridge(Page, "signin", "demo", "not-the-password");
        assert.equal(await Bridge(Page, "iscoreauthorized"), false);
        assert.equal(await Bridge(Page, "getuserdetails"), "{}");
        assert.deepEqual(JSON.parse(await Bridge(Page, "getlibraryinfo")), { libraryId: "", files: [], installedProducts: [] });

        assert.equal(await Bridge(Page, "signin", "demo", "demo"), undefined);
        assert.equal(await Bridge(Page, "iscoreauthorized"), true);
        assert.equal(JSON.parse(await Bridge(Page, "getuserdetails")).username, "demo");
        const Library = JSON.parse(await Bridge(Page, "getlibraryinfo"));
        assert.equal(Library.files.length, 19);
        assert.deepEqual(Library.files[1], { productid: "FNV-CH-1102", filename: "FNV-CH-1102.zip", name: "Sedia Arco", assetType: "product" });
        assert.deepEqual(await Events(Page), [["library.updated", null]]);

        await Bridge(Page, "triggerauthcheck");
        assert.match(Host.Errors, /LogTemp: OrvCore \(host\): session checked, signed in/);
    });

    it("downloads, then changes the library: add to project, remove, clear; and sends the test event", async () => {
        await Bridge(Page, "addassetdownload", "FNV-CH-1102", "product");
        await WaitFor(async () => (await Events(Page)).some(([Name]) => Name === "downloader.queue.finished"), "the download finishing");
        await Page.evaluate(() => (window.__events = []));
        await Bridge(Page, "addproducttoproject", "FNV-CH-1102");
        assert.match(Host.Errors, /OrvCore \(host\): added FNV-CH-1102 to the project/);
        await Bridge(Page, "removeproductfromlibrary", "FNV-CH-1102");
        const Library = JSON.parse(await Bridge(Page, "getlibraryinfo"));
        assert.equal(Library.files.some((File) => File.productid === "FNV-CH-1102"), false);
        assert.deepEqual(Library.installedProducts, []);
        await Bridge(Page, "clearlibrarydata");
        assert.deepEqual(JSON.parse(await Bridge(Page, "getlibraryinfo")).files, []);
        await Bridge(Page, "testorveventbus");
        await WaitFor(async () => (await Events(Page)).length === 3, "three events");
        assert.deepEqual(await Events(Page), [["library.updated", null], ["library.updated", null], ["orvbus.test", { status: "okay" }]]);
        assert.match(Host.Errors, /LogTemp: Warning: Orv Bridge - TestOrvEventBus CALLED/);
    });

    it("prints external URLs for the user and reloads the page on refreshpanel", async () => {
        await Bridge(Page, "openexternalurl", "https://www.orvessa.example/help\u001b[2J");
        await WaitFor(() => Host.Output.includes("Orv Catalog: open in your browser: https://www.orvessa.example/help?[2J"),
            "the URL on the console");
        await Page.evaluate(() => (window.__marker = true));
        // The page reloads before the call's answer can arrive, so the call is not awaited.
        await Promise.all([Page.waitForNavigation(), Page.evaluate(() => void window.ue.orvbridge.refreshpanel())]);
        assert.equal(await Page.evaluate(() => window.__marker), undefined);
    });
});

describe("the sign-in session", () => {
    const Context = UseHost();
    let Host;
    let Page;
    before(() => ({ Host, Page } = Context));

    it("setsessiontoken stores the orvsession cookie, signs in and reloads the page", async () => {
        await Promise.all([Page.waitForNavigation(), Bridge(Page, "setsessiontoken", "tok-123")]);
        const Session = (await Page.browserContext().cookies()).find((Cookie) => Cookie.name === "orvsession");
        assert.equal(Session?.value, "tok-123");
        assert.equal(Session.httpOnly, true);
        assert.equal(await Page.evaluate(() => document.cookie.includes("orvsession")), false);
        assert.equal(await Bridge(Page, "iscoreauthorized"), true);
        assert.match(Host.Errors, /\[Auth\] StoreSessionToken - Token stored, CookieJar now has 1 cookies/);
        assert.match(Host.Errors, /\[Cookie\] Injecting 1 cookies into CEF/);
    });

    it("logoutuser signs out and clears the browser's cookies", async () => {
        await InstallRecorder(Page);
        await Page.evaluate(() => (document.cookie = "theme=dark; path=/"));
        assert.deepEqual(await Cookies(Page), ["orvsession", "theme"]);
        await Bridge(Page, "logoutuser");
        await WaitFor(async () => (await Cookies(Page)).length === 0, "every cookie gone");
        assert.equal(await Bridge(Page, "iscoreauthorized"), false);
        assert.match(Host.Errors, /\[Cookie\] Deleted 2 cookies from CEF/);
    });

    it("the OAuth popup signs in on the site, closes itself and tells the panel", async () => {
        await Page.reload();
        await InstallRecorder(Page);
        const PopupOpened = new Promise((Resolve) => Page.once("popup", Resolve));
        await Page.click("#sign-in-popup");
        const Popup = await PopupOpened;
        await Popup.waitForSelector("#username");
        assert.equal(await Popup.title(), "ORVESSA Login");
        const Closed = new Promise((Resolve) => Popup.once("close", Resolve));
        await Popup.type("#username", "demo");
        await Popup.type("#password", "demo");
        // The site hands its new session to the editor, which reloads the panel signed in.
        const Reloaded = Page.waitForNavigation();
        await Popup.click("button[type=submit]");
        await Closed;
        await Reloaded;
        assert.equal(await Bridge(Page, "iscoreauthorized"), true);
        const Jar = await Page.browserContext().cookies();
        const Value = (Name) => Jar.find((Cookie) => Cookie.name === Name)?.value;
        assert.ok(Value("orvsite"));
        assert.equal(Value("orvsession"), Value("orvsite"));
        assert.match(Host.Errors, /\[OAuth\] Sign-in completed at http:\/\/127\.0\.0\.1:\d+\/oauth-device-success/);
    });
});

describe("the demo site, as a user drives it", () => {
    const Context = UseHost({ bConnected: false });
    let Host;
    let Page;
    before(async () => {
        ({ Host, Page } = Context);
        await Page.goto(Host.PanelUrl);
    });

    it("signs in, lists the library, downloads with live progress and receives the test event", async () => {
        await Page.waitForSelector("#sign-in-form", { visible: true });
        await Page.type("#username", "demo");
        await Page.type("#password", "wrong");
        await Page.click("#sign-in-form button[type=submit]");
        await Page.waitForSelector("#sign-in-error", { visible: true });
        await Page.$eval("#password", (Input) => (Input.value = ""));
        await Page.type("#password", "demo");
        await Page.click("#sign-in-form button[type=submit]");
        await Page.waitForSelector("#library-list li", { visible: true });
        assert.equal(await Page.$$eval("#library-list li", (Rows) => Rows.length), 19);

        await Page.click('#library-list li[data-product-id="PVV-CT-0510"] .download-button');
        await Page.waitForSelector("#download", { visible: true });
        assert.equal(await Page.$eval("#download-name", (Name) => Name.textContent), 'Tavolino "Sasso", basso');
        await Page.waitForFunction(() => document.getElementById("download-progress").value > 0.3);
        await Page.waitForSelector('#library-list li.installed[data-product-id="PVV-CT-0510"]');
        await Page.waitForSelector("#download", { hidden: true });

        await Page.click("#test-event");
        await Page.waitForSelector('#event-log li[data-event="orvbus.test"]');
        const Logged = await Page.$$eval("#event-log li", (Items) => Items.map((Item) => Item.dataset.event).reverse());
        assert.deepEqual(Logged.filter((Name) => Name !== "downloader.queue.progress"),
            ["library.updated", "downloader.queue.updated", "library.updated", "downloader.queue.finished", "orvbus.test"]);
    });

    it("shows product and finish pages from the catalogue", async () => {
        await Page.goto(new URL("/go/product/PVV-CT-0510", Host.PanelUrl).href);
        await Page.waitForFunction(() => document.getElementById("detail-name").textContent === 'Tavolino "Sasso", basso');
        await Page.click("#detail-related a");
        await Page.waitForFunction(() => document.getElementById("detail-name").textContent === "Carrara Marble, honed");
        assert.equal(new URL(Page.url()).pathname, "/go/finish/FIN-MAR-CAR");
        const Missing = await Page.goto(new URL("/go/product/NO-SUCH-ID", Host.PanelUrl).href);
        assert.equal(Missing.status(), 404);
    });
});

describe("who may talk to the panel", () => {
    const Context = UseHost({ bConnected: false });

    const Request = (Method, Path, Headers, Body = "") =>
        new Promise((Resolve, Reject) => {
            const Url = new URL(Path, Context.Host.PanelUrl);
            const Call = http.request({ host: "127.0.0.1", port: Url.port, path: Url.pathname, method: Method, headers: Headers }, (Answer) => {
                Answer.resume();
                Resolve(Answer.statusCode);
                Answer.destroy();
            });
            Call.on("error", Reject);
            Call.end(Body);
        });

    it("refuses bridge calls and the event stream from other origins and other host names", async () => {
        const Own = new URL(Context.Host.PanelUrl);
        const Call = JSON.stringify({ function: "signin", args: ["demo", "demo"] });
        assert.equal(await Request("POST", "/__orv/call", { Origin: Own.origin, Host: Own.host }, Call), 200);
        assert.equal(await Request("POST", "/__orv/call", { Origin: "http://evil.example", Host: Own.host }, Call), 403);
        assert.equal(await Request("POST", "/__orv/call", { Host: Own.host }, Call), 403);
        assert.equal(await Request("POST", "/__orv/call", { Origin: "http://evil.example:80", Host: "evil.example:80" }, Call), 403);
        assert.equal(await Request("GET", "/__orv/events", { Origin: "http://evil.example", Host: Own.host }), 403);
        assert.equal(await Request("GET", "/__orv/events", { Host: Own.host, "Sec-Fetch-Site": "cross-site" }), 403);
        assert.equal(await Request("GET", "/", { Host: "rebound.example:80" }), 403);
        assert.equal(await Request("GET", "/", { Host: Own.host }), 200);
    });
});
