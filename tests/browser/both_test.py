"""What holds for both pages: accessible, silent, readable without script, and safe with hostile texts."""
import re

from selenium.webdriver import ActionChains

import browser
import comparison_test
import entries_test
from browser import BrowserTest, cif

# As they stand in the file; &lt; and &gt; are how CIF texts write angle brackets.
HOSTILE = ("<img src=x onerror=alert(1)>", "</script><script>alert(2)</script>", "javascript:alert(3)",
           '"><svg onload=alert(4)>', "]]>]]&gt;", "--></style><style>*{display:none}</style>",
           "' onclick=alert(5) x='", "${alert(6)} {{7*7}} &lt;i&gt;", "abc\u202etxt.exe")
SHOWN = [text.replace("&lt;", "<").replace("&gt;", ">") for text in HOSTILE]


def hostile(*extra):
    """An entry each of whose items is one of these texts, in a block and a file of such a name."""
    items = dict.fromkeys(re.findall(r"(?m)^_(\S+)", browser.DATA[2].read_text(encoding="utf-8")))
    items = [item for item in items if not item.startswith(("atom_", "geom_", "symmetry_equiv"))]
    texts = [HOSTILE[number % len(HOSTILE)] for number in range(len(items))]
    titles = {"publ_section_title": " ".join((*HOSTILE, *extra)), "journal_paper_doi": HOSTILE[2]}
    return "".join(cif(block, {**dict(zip(items, texts)), **titles})
                   for block in ('"><img/src=x/onerror=alert(8)>', "</script><script>alert(9)</script>"))


class BothPagesTest(BrowserTest):
    def test_axe_finds_nothing(self):
        axe = browser.AXE.read_text(encoding="utf-8")
        pages = {"entries": browser.page_of(*browser.DATA), "comparison": comparison_test.sample()}
        for kind, page in pages.items():
            for scheme in ("light", "dark"):
                for size in (browser.WIDE, browser.NARROW):
                    self.open(page, size, scheme)
                    if kind == "entries":
                        self.press("/", "acta")
                        self.wait(self.highlighted)
                        self.js("document.querySelector('article:not([hidden]) a.label').focus()")
                        self.js("document.querySelector('button.copy').click()")
                    else:
                        self.press("n")
                    self.js(axe)
                    found = self.driver.execute_async_script("""axe.run().then(result => arguments[0](
                        result.violations.map(found => [found.id, found.help,
                            found.nodes.slice(0, 3).map(node => [node.target.join(' '), node.failureSummary])])))""")
                    with self.subTest(f"{kind} {scheme} {size}"):
                        self.assertEqual(found, [])
                        self.assertLessEqual(self.js("return document.documentElement.scrollWidth"), size[0])

    def test_without_script_all_is_there(self):
        for page in (browser.page_of(*browser.DATA), comparison_test.sample()):
            with self.subTest(page.name):
                texts = {}
                for script in (True, False):
                    self.open(page, script=script)
                    self.cdp("Emulation.setScriptExecutionDisabled", value=False)
                    self.js("document.querySelectorAll('details').forEach(e => e.open = true)")
                    texts[script] = self.texts(".value, .left, .right, .why, h1, h2, h3, nav a")
                self.assertGreater(len(texts[True]), 30)
                self.assertEqual(texts[False], texts[True])
                self.assertEqual(self.all("#search, button, .tools"), [])

    def test_policy_and_nothing_else(self):
        for page in (browser.page_of(*browser.DATA), comparison_test.sample()):
            text = page.read_text(encoding="utf-8")
            with self.subTest(page.name):
                self.assertRegex(text, r"<meta http-equiv=\"?Content-Security-Policy\"? content=\"default-src 'none'; "
                                       r"style-src 'sha256-\S+'; script-src 'sha256-\S+'; base-uri 'none'; "
                                       r"form-action 'none'\">")
                self.assertEqual(re.findall(r"<style|<script(?! type=\"application/json\")", text), ["<style", "<script"])
                self.assertNotIn(str(browser.ROOT), text)

    def assert_harmless(self):
        made = self.js("""return [...document.querySelectorAll(`img, svg, iframe, object, embed, link, base, form,
                script:not(#folding, :last-of-type), style:not(head > *)`),
            ...[...document.querySelectorAll('*')].filter(e => e.getAttributeNames().some(
                name => name.startsWith('on') || name === 'src'
                    || name === 'style' && !e.matches('.menu'))),
            ...[...document.links].filter(link => !/^(#|https:\\/\\/doi\\.org\\/)/.test(link.getAttribute('href')))]
            .map(e => e.outerHTML)""")
        self.assertEqual(made, [])
        text = " ".join(self.js("return document.body.innerText").split())
        for hostile_text in SHOWN[:-1]:
            self.assertIn(hostile_text, text)
        self.assertIn("abc<U+202E>txt.exe", text)
        self.assertNotIn("\u202e", text)

    def test_hostile_entries(self):
        self.open(browser.page_of(browser.file_of(hostile(), '"><img src=x onerror=alert(0)>.cif'),
                                  status=(1,)))
        self.assert_harmless()
        for term in SHOWN[:5]:
            with self.subTest(term):
                self.find("#search").clear()
                self.find("#search").send_keys(term)
                self.wait(self.highlighted)
                self.assertEqual(len(self.all("article:not([hidden])")), 2)
        title = self.find("article [data-field='Title']")
        for form in ("unicode", "html", "cif-text"):
            ActionChains(self.driver, 0).move_to_element(title).perform()
            self.wait(lambda: title.find_element("css selector", "button.copy")).click()
            self.find(f"[data-form={form}]").click()
            self.wait(lambda: self.find("#said").text)
            escaped = HOSTILE[0].replace("<", "&lt;").replace(">", "&gt;")
            self.assertIn(escaped if form == "html" else HOSTILE[0], self.clipboard().replace("&gt;", ">")
                          if form == "cif-text" else self.clipboard())
        self.assert_harmless()

    def test_hostile_comparison(self):
        self.open(browser.comparison_of(browser.file_of(hostile(), "<b>.cif"),
                                        browser.file_of(hostile("more"), "<title><b>.cif"),
                                        status=(2,)))
        self.js("document.querySelectorAll('details').forEach(e => e.open = true)")
        self.assert_harmless()
        self.press("n")
        self.assert_harmless()
