"""The translators' tools, each run as its user runs it."""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parent
TRANSLATIONS = TOOLS.parent / "share/translations"


def run(tool, *arguments):
    command = [sys.executable, TOOLS / tool, *arguments]
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)


class TranslationTools(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.directory = pathlib.Path(directory.name)

    def write(self, name, content):
        path = self.directory / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return path

    def make_template(self, source):
        self.write("src/greeting.cpp", source)
        self.write("share/translations/template.xlat", b"")
        return run("make_translation_template", self.directory)

    def test_the_template_is_what_the_sources_yield(self):
        made = run("make_translation_template", "--check")
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def test_the_template_holds_every_literal_that_is_translated(self):
        source = rb"""// UFormat("remark")
            auto a = UFormat("Say \"{word}\" " /* twice */
                             "now"), b = MakeUString(ControlLiteral("\"")), c = UFormat("{a}\n{b}");"""
        made = self.make_template(source)
        self.assertEqual((made.returncode, made.stderr), (0, ""))
        written = (self.directory / "share/translations/template.xlat").read_text().split("# greeting.cpp\n")[1]
        self.assertEqual(written, 'Say "{word}" now\n"\n# No line can hold this one, it is not translated: {a}\\n{b}\n')
        self.write("src/greeting.cpp", b'UFormat("Other");')
        self.assertEqual(run("make_translation_template", "--check", self.directory).returncode, 1)

    def test_a_call_that_hides_its_text_is_refused(self):
        for source in (b"UFormat(greeting);", b'ControlLiteral(polite ? "Good day" : "Hello");'):
            made = self.make_template(source)
            self.assertEqual(made.returncode, 1)
            self.assertIn("src/greeting.cpp", made.stderr)

    def test_the_translations_that_come_along_are_complete_and_clean(self):
        for encoding, languages in {"ISO-8859-1": ("de", "fr"), "EUC-JP": ("ja",)}.items():
            files = [TRANSLATIONS / f"{language}.xlat" for language in languages]
            checked = run("check_translation", "--encoding", encoding, *files)
            self.assertEqual((checked.returncode, checked.stdout, checked.stderr), (0, "", ""))

    def test_each_fault_is_reported_once_with_its_line(self):
        texts = b"# Texts\n\nOK\nStop.  Go.\n{days} days\nNow\nTitle\nSearch:\nClose\nHide\n"
        template = self.write("template.xlat", texts)
        faults = {
            b"\xef\xbb\xbf# Deutsch": "a byte-order mark",
            b"# Fristen": None,
            b"OK\t\tGut": None,
            b"Nwo\tJetzt": "unknown key",
            b"Stop. Go.\tHalt. Los.": "blanks",
            b"{days} days\t{day} {_crlf}{_nbsp} {": ("variable {day}", "variable {_nbsp}", 'without a "}"'),
            b"OK\tAlles gut\r": "also in line 3; the smallest text wins, in line 7",
            b"Title\tTitel \xe2\x82\xac \xff": "not UTF-8 from byte 17",
            b"Search:": "no tab",
            b"\tVerloren": "a tab at the start",
            b"Close\tZu\tSchlie\xc3\x9fen \xe2\x82\xac": ("is lost", "ISO-8859-1 has no \u20ac"),
            b"Hide\t": "nothing is shown",
        }
        file = self.write("de.xlat", b"\n".join(faults))
        checked = run("check_translation", "--template", template, "--encoding", "ISO-8859-1", file)
        expected = [(f"{file}: ", 'no line for "Stop.  Go." (line 4'), (f"{file}: ", 'no line for "Now" (line 6')]
        for number, messages in enumerate(faults.values(), 1):
            for message in [messages] if isinstance(messages, str) else messages or ():
                expected.append((f"{file}:{number}: ", message))
        found = checked.stdout.splitlines()
        self.assertEqual((checked.returncode, len(found)), (1, len(expected)), checked.stdout + checked.stderr)
        for line, (start, message) in zip(found, expected):
            self.assertTrue(line.startswith(start) and message in line, (start, message, line))
        brand = run("check_translation", "--template", template, "--encoding", "ISO-8859-1", "--partial", file)
        self.assertEqual(brand.stdout.splitlines(), found[2:])

    def test_who_reads_no_further_gets_no_traceback(self):
        reading, writing = os.pipe()
        os.close(reading)
        command = [sys.executable, TOOLS / "check_translation", TRANSLATIONS / "template.xlat"]
        self.assertEqual(subprocess.run(command, stdout=writing, stderr=subprocess.PIPE, check=False).stderr, b"")
        os.close(writing)

    def test_what_cannot_be_read_ends_with_two(self):
        for arguments in ([], [self.directory / "none.xlat"], ["--encoding", "none", TRANSLATIONS / "de.xlat"]):
            self.assertEqual(run("check_translation", *arguments).returncode, 2)


unittest.main()
