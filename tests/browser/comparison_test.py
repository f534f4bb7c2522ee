"""The page of a comparison: its summary, keys and marks."""
import browser
from browser import BrowserTest, cif

NAMES = ("chemical_name_systematic", "chemical_formula_sum", "cell_length_a", "publ_section_title", "journal_year")
LEFT = {"I": ("Ethanol", "C2 H6 O", "10.2(1)", "A first title", "2004"),
        "II": ("Zinc", "Zn", "2.66", "A title", "1968"),
        "III": (r"\a-Quartz", "O2 Si", "4.91", "Quartz", "1980"),
        "left": ("Ammonia", "H3 N", "5.1", "Left", "1990")}
RIGHT = {"I": ("Ethanal", "C2 H4 O", "10.3(1)", "A first Title", "2005"),
         "II": ("Zinc", "Zn", "2.66", "A title", "1968"),
         "III": (r"\a-Quartz", "O2 Si", "4.95", "Quartz", "1981"),
         "right": ("Urea", "C H4 N2 O", "5.6", "Right", "1991")}


def sample():
    return browser.comparison_of(*(
        browser.file_of("".join(cif(block, zip(NAMES, values)) for block, values in side.items()), name)
        for side, name in ((LEFT, "left.cif"), (RIGHT, "right.cif"))))


class ComparisonTest(BrowserTest):
    def test_links(self):
        self.open(sample())
        targets = self.js("""return [...document.links].map(link =>
            document.querySelectorAll(`[id="${decodeURIComponent(link.hash.slice(1))}"]`).length)""")
        self.assertEqual(set(targets), {1})
        self.assertEqual(self.js("""const ids = [...document.querySelectorAll('[id]')].map(e => e.id);
            return ids.length - new Set(ids).size"""), 0)
        self.assertEqual(len(self.all("article.pair")), 5)
        self.assertEqual(self.js("""return [...document.querySelectorAll('article.pair')]
            .filter(e => !document.querySelector(`#index a[href="#${e.id}"]`)).length"""), 0)
        index = self.find("#index").text
        for only in ("left", "right"):
            self.assertIn(only, index)
        self.assertIn("Compound Name", self.find("#summary").text)

    def test_next_and_previous(self):
        self.open(sample())
        rows = self.js("""return [...document.querySelectorAll('.field')]
            .filter(e => !e.matches('.equal, .equivalent')).map(e => e.id)""")
        self.assertGreater(len(rows), 3)
        at = lambda: self.js("return document.activeElement.id")
        for step, row in enumerate(rows):
            self.press("n")
            self.assertEqual(at(), row)
            self.assertRegex(self.find("#said").text, rf"\b{step + 1} of {len(rows)}\b")
            self.assertTrue(self.js("""const at = document.activeElement.getBoundingClientRect();
                return at.top >= 0 && at.top < innerHeight && document.activeElement.checkVisibility()"""))
        for row in reversed(rows[:-1]):
            self.press("p")
            self.assertEqual(at(), row)

    def test_marks_do_not_rest_on_colour(self):
        self.open(sample())
        marks = self.js("""return [...document.querySelectorAll('td :is(.red, .green4, .blue)')].map(mark => {
            const of = element => { const style = getComputedStyle(element);
                return [style.textDecorationLine, style.textDecorationStyle, style.fontWeight,
                        style.backgroundColor]; };
            return [mark.textContent, mark.closest('.left, .right').className,
                    mark.closest('.field').matches('.equivalent'), of(mark), of(mark.parentElement)]})""")
        self.assertLessEqual({"o", "a", "2004", "2005", "10.2(1)", "10.3(1)"}, {text for text, *_ in marks})
        self.assertEqual({side for _, side, *_ in marks}, {"left", "right"})
        for text, _, equivalent, mark, around in marks:
            with self.subTest(text):
                self.assertEqual(mark[:2], ["underline", "dotted" if equivalent else "solid"])
                self.assertGreaterEqual(int(mark[2]), 600)
                self.assertNotEqual(mark[3], around[3])

    def test_equal_fields_come_last_and_closed(self):
        self.open(sample())
        self.assertEqual(self.all(".field.equal:not(details *), .field:not(.equal, .equivalent):is(details *)"), [])
        self.assertGreater(len(self.all("details:not([open]) .field.equal")), 5)
        self.assertEqual(self.all("details[open], details + .field, details ~ * .field.different"), [])
        for row in self.all(".field.different"):
            self.assertTrue(row.find_element("css selector", ".why").text)
