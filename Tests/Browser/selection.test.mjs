// The catalogue panel follows the editor: the tab's toolbar above the site, selections made from the
// console (standing for the viewport and the Content Browser) and Alt+R typed in the page, in headless
// Chromium. Run: ORV_HOST=path/to/orv-host node selection.test.mjs
import { after, before, describe, it } from "node:test";
import assert from "node:assert/strict";
import { InstallRecorder, LaunchBrowser, StartHost, WaitFor } from "./support.mjs";

/** Runs Fn on an element of the toolbar's shadow tree; "navigating" while the page is being replaced. */
const OnToolbar = (Page, Query, Fn) =>
    Page.evaluate(
        (Q, F) => new Function("Element", `return (${F})(Element);`)(document.getElementById("orv-catalog-toolbar").shadowRoot.querySelector(Q)),
        Query, Fn.toString(),
    ).catch(() => "navigating");
const Shows = (Page, Query) => OnToolbar(Page, Query, (Element) => [Element.textContent.trim(), Element.title]);
const IsTicked = (Page) => OnToolbar(Page, "input", (Element) => Element.checked);
const Tick = (Page) => OnToolbar(Page, "input", (Element) => Element.click());
const AltR = async (Page) => {
    await Page.keyboard.down("Alt");
    await Page.keyboard.press("KeyR");
    await Page.keyboard.up("Alt");
};

describe("the catalogue panel follows the editor", () => {
    let Chromium;
    let Host;
    let Page;
    /** Waits until the panel shows Path with its event stream connected, so the editor can drive it again. */
    const Lands = async (Path) => {
        const Ready = () => Page.evaluate(() => Boolean(window.ue && window.ue.orvbridge)).catch(() => false);
        await WaitFor(async () => new URL(Page.url()).pathname === Path && (await Ready()), `the panel on ${Path}`);
        await InstallRecorder(Page);
    };
    /** Waits until the host has logged Line Times times. */
    const Logged = (Line, Times = 1) =>
        WaitFor(() => Host.Errors.split(Line).length > Times, `the log line "${Line}" ${Times} times`);

    before(async () => {
        Chromium = await LaunchBrowser();
        Host = await StartHost({ bConsole: true });
        Page = await Chromium.Browser.newPage();
        await Page.goto(Host.PanelUrl);
        await InstallRecorder(Page);
    });
    after(async () => {
        await Page?.close();
        await Host?.Stop();
        await Chromium?.Close();
    });

    it("shows the tab's toolbar, whose check box is the console's autodetect", async () => {
        assert.deepEqual(await Shows(Page, "#auto-detect"), ["Auto-Detect",
            "Automatically detects Orv products in viewport and finish materials in Content Browser, navigating to their details page"]);
        assert.deepEqual(await Shows(Page, ".hint"), ["Select asset > Alt+R for details",
            "Select an Orv product in viewport or finish material in Content Browser, then press Alt+R to view details"]);
        assert.deepEqual(await Shows(Page, "#copy-url"), ["Copy URL", "Copy current URL to clipboard"]);
        assert.equal(await IsTicked(Page), false, "auto-detect is off after start-up");

        await Host.Command("autodetect on", /^Auto-Detect is on\.$/);
        await WaitFor(async () => (await IsTicked(Page)) === true, "the box ticked from the console");
        await Tick(Page);
        await Logged("LogTemp: Display: OrvSmartPanel: Auto-Detect disabled");
        assert.equal(await Host.Command("autodetect", /^Auto-Detect is/), "Auto-Detect is off.");
        await Tick(Page);
        await Logged("LogTemp: Display: OrvSmartPanel: Auto-Detect enabled", 2);
    });

    it("lands on a selected product's page, and selecting it again does not reload", async () => {
        await Host.Command("viewport-select Sofa", /^Panel: /);
        await Lands("/go/product/ATB-SF-3300");
        await Page.waitForFunction(() => document.getElementById("detail-name").textContent.includes("Onda"));

        await Page.evaluate(() => (window.__notReloaded = true));
        assert.equal(await Host.Command("viewport-select Sofa", /^Panel: /), "Panel: unchanged.");
        assert.equal(await Page.evaluate(() => window.__notReloaded), true);
    });

    it("reloads on Alt+R typed in the page", async () => {
        await AltR(Page);
        await WaitFor(async () => (await Page.evaluate(() => window.__notReloaded).catch(() => true)) === undefined, "a reload");
        await Lands("/go/product/ATB-SF-3300");
        await Logged("LogTemp: Display: OrvInputProcessor: Alt+R detected! (Key=R, ByChar=0)");
        await Logged("LogTemp: Display: OrvSmartPanel: Alt+R - Navigating to product ATB-SF-3300");
    });

    it("shows a finish selected in the Content Browser on Alt+R with the browser focused", async () => {
        await Tick(Page);
        await Logged("LogTemp: Display: OrvSmartPanel: Auto-Detect disabled", 2);
        assert.equal(await Host.Command("browser-select MI_Boucle_Ivory", /^Panel: /), "Panel: unchanged.");
        await Host.Command("focus browser", /^Keyboard focus/);
        await AltR(Page);
        await Lands("/go/finish/FIN-BOU-IVO");
        await Page.waitForFunction(() => document.getElementById("detail-name").textContent === "Ivory Boucle");
        await Logged("LogTemp: Display: OrvSmartPanel: Alt+R - Content Browser has focus (detected: SAssetView)");
    });

    it("follows the outliner's select too, with auto-detect on", async () => {
        await Host.Command("autodetect on", /^Auto-Detect is on\.$/);
        await Host.Command("select FNV-CH-1102", /^Selected /);
        await Lands("/go/product/FNV-CH-1102");
    });

    it("copies the panel's URL to the page's clipboard with Copy URL", async () => {
        const Url = new URL("/go/product/FNV-CH-1102", Host.PanelUrl).href;
        await Page.browserContext().overridePermissions(new URL(Host.PanelUrl).origin, ["clipboard-read", "clipboard-write"]);
        await OnToolbar(Page, "#copy-url", (Element) => Element.click());
        await Logged(`LogTemp: Display: OrvSmartPanel: Copied URL to clipboard: ${Url}`);
        await WaitFor(async () => (await Page.evaluate(() => navigator.clipboard.readText())) === Url, "the URL on the clipboard");
    });
});
