// Looks at published pages in a browser: node check.mjs FOLDER, which holds web/ and page.html. What
// is wrong goes to standard output, pictures of the pages to FOLDER/shots; the exit status is 1 when
// anything is wrong. scripts/check-pages makes the folder.
import {execFileSync} from "node:child_process";
import {mkdirSync, readFileSync, readdirSync} from "node:fs";
import {createRequire} from "node:module";
import {join} from "node:path";
import {pathToFileURL} from "node:url";
import puppeteer from "puppeteer-core";

const folder = process.argv[2];
const require = createRequire(import.meta.url);
const axe = readFileSync(require.resolve("axe-core/axe.min.js"), "utf8");
const shots = join(folder, "shots");
mkdirSync(shots, {recursive: true});

const pages = readdirSync(join(folder, "web")).filter(name => name.endsWith(".html"))
    .map(name => join("web", name)).concat("page.html");
const chapter = pages.find(name => name.includes("chapter-"));
let faults = 0;

function expect(isRight, text) {
  if (isRight) return;
  ++faults;
  console.log(`FAULT: ${text}`);
}

const browser = await puppeteer.launch({
  executablePath: "/usr/bin/chromium",
  args: ["--no-sandbox", "--disable-gpu", "--hide-scrollbars"],
});

// A page from the disk, as by a double click. Every request and every error counts.
async function open(name, {width = 1280, height = 800, scale = 1, isDark = false, isPhone = false,
                           isRightToLeft = false, hasScript = true} = {}) {
  const page = await browser.newPage();
  page.on("request", request => {
    const address = request.url();
    expect(/^(file|data|blob):/.test(address), `${name} asks for ${address.slice(0, 80)}`);
  });
  page.on("pageerror", error => expect(false, `${name}: ${error.message}`));
  page.on("requestfailed", request => expect(request.failure().errorText === "net::ERR_ABORTED",
      `${name}: ${request.url().slice(-60)} ${request.failure().errorText}`));
  await page.setJavaScriptEnabled(hasScript);
  await page.setViewport({width, height, deviceScaleFactor: scale, isMobile: isPhone, hasTouch: isPhone});
  await page.emulateMediaFeatures([
    {name: "prefers-color-scheme", value: isDark ? "dark" : "light"},
    {name: "prefers-reduced-motion", value: "reduce"},
  ]);
  await page.goto(pathToFileURL(join(folder, name)).href, {waitUntil: "load"});
  if (isRightToLeft)
    await page.evaluate(() => { document.documentElement.dir = "rtl"; });
  return page;
}

async function expectAccessible(page, state) {
  await page.evaluate(axe);
  const found = await page.evaluate(() => window.axe.run(document, {preload: false}));
  for (const violation of found.violations)
    expect(false, `${state}: ${violation.id} (${violation.nodes.length}): ${violation.nodes[0].html.slice(0, 120)}`);
  return found.passes.length;
}

const settle = () => new Promise(resolve => setTimeout(resolve, 300));
const shot = (page, name) => page.screenshot({path: join(shots, `${name}.png`)});

// 0 violations in every state.
let rules = 0;
for (const name of pages) {
  for (const [state, options] of Object.entries({light: {}, dark: {isDark: true}, rtl: {isRightToLeft: true}})) {
    const page = await open(name, options);
    rules += await expectAccessible(page, `${name}, ${state}`);
    const links = await page.$$("a.picture");
    if (links.length > 0) {
      await links[0].click();
      await settle();
      rules += await expectAccessible(page, `${name}, ${state}, large`);
    }
    await page.close();
  }
}
console.log(`accessibility: ${pages.length} pages, ${rules} rules passed`);

// The keys, by real key events.
for (const name of [chapter, "page.html"]) {
  const page = await open(name);
  const state = () => page.evaluate(() => ({
    isOpen: document.querySelector("dialog").open,
    src: document.querySelector(".view").src.slice(-40),
    place: document.querySelector(".place").textContent,
    focus: [...document.querySelectorAll("a.picture")].indexOf(document.activeElement),
    isPlaying: document.querySelector(".play").getAttribute("aria-pressed") === "true",
    hasFocusInside: document.querySelector("dialog").contains(document.activeElement),
  }));
  await page.focus("a.picture");
  await page.keyboard.press("Enter");
  await settle();
  const first = await state();
  expect(first.isOpen && first.hasFocusInside && first.src !== "", `${name}: Enter opens the large view`);
  await page.keyboard.press("ArrowRight");
  const second = await state();
  expect(second.place.startsWith("2 /") && second.src !== first.src, `${name}: an arrow goes on`);
  await page.keyboard.press("End");
  await page.keyboard.press("ArrowRight");
  expect((await state()).place.startsWith("1 /"), `${name}: after the last comes the first`);
  await page.keyboard.press("ArrowRight");
  for (let i = 0; i < 12; ++i) {
    await page.keyboard.press("Tab");
    const {focus} = await state();
    expect(focus < 0, `${name}: Tab leaves the large view`);
  }
  await page.evaluate(() => document.querySelector(".play").focus());
  await page.keyboard.press("Space");
  expect((await state()).isPlaying, `${name}: the slide show begins`);
  await page.keyboard.press("Escape");
  await settle();
  const last = await state();
  expect(!last.isOpen && last.focus === 1 && !last.isPlaying, `${name}: Esc closes and gives the focus back`);
  await page.close();
}

// Without script each picture is a link to its file.
{
  const page = await open(chapter, {hasScript: false});
  const links = await page.$$eval("a.picture", all => all.map(link => link.getAttribute("href")));
  expect(links.length > 0 && links.every(link => /^pictures\/[a-z0-9-]+\.jpg$/.test(link)), "links without script");
  await page.close();
}

// A phone takes files that are sharp on its screen, without scrolling sideways.
for (const name of pages) {
  const page = await open(name, {width: 390, height: 844, scale: 3, isPhone: true});
  await settle();
  const wide = await page.evaluate(() => document.documentElement.scrollWidth > innerWidth);
  expect(!wide, `${name}: scrolls sideways on a phone`);
  await page.close();
}

for (const width of [390, 1280, 1920]) {
  for (const [name, label] of [["web/index.html", "front"], [chapter, "chapter"], ["page.html", "page"]]) {
    for (const isDark of [false, true]) {
      const page = await open(name, {width, height: width === 390 ? 844 : 900, isDark});
      await settle();
      await shot(page, `${label}-${width}${isDark ? "-dark" : ""}`);
      if (name === chapter) {
        await page.click("a.picture");
        await settle();
        await shot(page, `large-${width}${isDark ? "-dark" : ""}`);
      }
      await page.close();
    }
  }
}
{
  // The picture in the README.
  const page = await open(chapter, {height: 560});
  await settle();
  await page.screenshot({path: join(shots, "published.jpg"), type: "jpeg", quality: 85});
  await page.close();
}
{
  const page = await open(chapter, {isRightToLeft: true});
  await settle();
  await shot(page, "chapter-rtl");
  await page.emulateMediaType("print");
  await page.pdf({path: join(shots, "chapter-print.pdf"), format: "A4", preferCSSPageSize: true});
  await page.close();
}
await browser.close();

// The Nu checker knows what HTML allows.
try {
  execFileSync("java", ["-jar", require.resolve("vnu-jar/build/dist/vnu.jar"), "--errors-only",
                        ...pages.map(name => join(folder, name))], {stdio: "pipe", maxBuffer: 1 << 26});
} catch (error) {
  const lines = error.stderr.toString().trim().split("\n");
  for (const line of lines.slice(0, 20))
    expect(false, line.slice(0, 300));
}
console.log(faults === 0 ? "nothing is wrong" : `${faults} faults`);
process.exitCode = faults === 0 ? 0 : 1;
