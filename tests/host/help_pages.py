"""What `tavi --help` and its pages say, as data: for the tests of the pages and of what is written beside them."""
import re
import subprocess


class Page:
    """One page of help."""

    def __init__(self, command, text):
        self.command = command  # "check", "record play"
        self.text = text

    @property
    def summary(self):
        return re.match(r"tavi [\w -]+? - (.+)\n", self.text).group(1)

    @property
    def options(self):
        """From option to the word for its value, "" for one that takes none."""
        return dict(re.findall(r"^  (--?[a-z-]+)(?: ([A-Za-z]+))?(?:  .*)?$", self.text, re.M))

    @property
    def example(self):
        """For a shell: all that stands behind the word."""
        return self.text.split("\nExample: ", 1)[1]


class Help:
    """All pages of a program."""

    def __init__(self, tavi, environment):
        self.tavi = tavi
        self.environment = environment
        self.overview = self.run("--help").stdout
        names = re.findall(r"^  ([a-z-]+(?: [a-z]+)?)  +\S", self.overview.split("\nCommands:\n")[1].split("\n\n")[0], re.M)
        self.pages = {name: Page(name, self.run(*name.split(), "--help").stdout) for name in names}

    def run(self, *arguments, **options):
        return subprocess.run([self.tavi, *arguments], env=self.environment, capture_output=True, text=True,
                              timeout=60, **options)
