"""One headless Chromium for all tests, and pages that the program makes for it."""
import atexit
import base64
import json
import os
import pathlib
import subprocess
import tempfile
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.wait import WebDriverWait

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = os.environ.get("LMRTEXT", str(ROOT / "build/release/cli/lmrtext"))
DATA = sorted((ROOT / "tests/data").glob("*.cif"))
AXE = ROOT / "tests/browser/node_modules/axe-core/axe.min.js"
WIDE, NARROW = (1280, 900), (360, 740)

folder = tempfile.TemporaryDirectory(prefix="lmrtext-browser-")
atexit.register(folder.cleanup)


def run(*arguments, status=(0,)):
    """What a program writes; fails on another exit status."""
    done = subprocess.run([str(argument) for argument in arguments], capture_output=True, text=True, check=False)
    if done.returncode not in status:
        raise RuntimeError(f"{arguments}: {done.returncode}: {done.stderr}")
    return done.stdout


def file_of(text, name="entries.cif"):
    path = pathlib.Path(folder.name, name)
    path.parent.mkdir(exist_ok=True)
    path.write_text(text, encoding="utf-8")
    return path


def page_of(*files, status=(0,)):
    page = pathlib.Path(folder.name, "page.html")
    run(PROGRAM, "show", *files, "-o", page, status=status)
    return page


def comparison_of(left, right, status=(0, 1)):
    page = pathlib.Path(folder.name, "comparison.html")
    run(PROGRAM, "compare", left, right, "-o", page, "--all", status=status)
    return page


def cif(block, items):
    """A block with these items, whose names lack their first underscore; None is left out. A cell is made cubic."""
    lines, items = [f"data_{block}"], dict(items)
    if items.get("cell_length_a"):
        items = {f"cell_length_{axis}": items["cell_length_a"] for axis in "bc"} | {
            f"cell_angle_{angle}": "90" for angle in ("alpha", "beta", "gamma")} | items
    for name, value in items.items():
        if value is not None:
            lines.append(f"_{name}\n;{value}\n;")
    return "\n".join(lines) + "\n"


def start():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in ("--headless=new", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                     "--disable-background-networking", "--disable-component-update", "--disable-sync",
                     "--force-device-scale-factor=1", "--hide-scrollbars",
                     "--user-data-dir=" + tempfile.mkdtemp(dir=folder.name)):
        options.add_argument(argument)
    if os.geteuid() == 0:
        options.add_argument("--no-sandbox")
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    started = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    atexit.register(started.quit)
    started.execute_cdp_cmd("Browser.grantPermissions",
                            {"permissions": ["clipboardReadWrite", "clipboardSanitizedWrite"]})
    return started


class BrowserTest(unittest.TestCase):
    """A test over pages; whatever a page says on the console or asks of the network makes it fail."""

    driver = None

    @classmethod
    def setUpClass(cls):
        if BrowserTest.driver is None:
            BrowserTest.driver = start()

    def setUp(self):
        self.driver.get("about:blank")
        self.driver.get_log("browser")
        self.driver.get_log("performance")

    def tearDown(self):
        self.cdp("Emulation.setScriptExecutionDisabled", value=False)
        self.assertEqual(self.driver.get_log("browser"), [])
        asked = [json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance")]
        asked = {event["params"]["request"]["url"].partition("#")[0] for event in asked
                 if event["method"] == "Network.requestWillBeSent"}
        self.assertEqual([url for url in asked if not url.startswith(f"file://{folder.name}/")], [])
        self.assertLessEqual({url.rpartition("/")[2] for url in asked}, {"page.html", "comparison.html"})

    def cdp(self, command, **parameters):
        return self.driver.execute_cdp_cmd(command, parameters)

    def open(self, page, size=WIDE, scheme="light", script=True):
        self.cdp("Emulation.setDeviceMetricsOverride", width=size[0], height=size[1], deviceScaleFactor=1,
                 mobile=False)
        self.cdp("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])
        self.cdp("Emulation.setScriptExecutionDisabled", value=not script)
        self.driver.get("about:blank")  # or a second page that differs in its fragment alone is not loaded
        self.driver.get(page.as_uri())

    def js(self, code, *arguments):
        return self.driver.execute_script(code, *arguments)

    def find(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def texts(self, selector):
        """The texts of what is shown of these elements."""
        return self.js("""return [...document.querySelectorAll(arguments[0])]
            .filter(e => e.checkVisibility()).map(e => e.textContent.trim())""", selector)

    def press(self, *keys):
        webdriver.ActionChains(self.driver, 0).send_keys(*keys).perform()

    def wait(self, condition):
        """Waits for what a condition gives, when it is anything."""
        return WebDriverWait(self.driver, 10, 0.02).until(lambda driver: condition())

    def highlighted(self):
        return self.js("return [...CSS.highlights.get('found') ?? []].map(range => range.toString())")

    def clipboard(self):
        return self.driver.execute_async_script(
            "navigator.clipboard.readText().then(arguments[0], error => arguments[0](String(error)))")

    def pdf(self):
        path = pathlib.Path(folder.name, "page.pdf")
        path.write_bytes(base64.b64decode(self.cdp("Page.printToPDF", preferCSSPageSize=True)["data"]))
        return path
