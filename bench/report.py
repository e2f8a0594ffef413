"""The tables of the results."""

import os
import platform
import statistics
import time

from measure import run


def describe(disk, rounds):
    system, kernel = platform.freedesktop_os_release()["PRETTY_NAME"], platform.release()
    qt = run("dpkg-query", "-W", "-f", "${Version}", "libqt6core6")
    processor = run("sed", "-n", "/^model name/ { s/.*: //p; q }", "/proc/cpuinfo")
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") // 2**30
    return f"""# Performance compared with other programs

- {time.strftime("%-d %B %Y", time.gmtime())}; {system}, Linux {kernel.rpartition(".")[0]}, Qt {qt}
- {len(os.sched_getaffinity(0))} cores of {processor}, {memory} GiB of memory, \
load at the start {os.getloadavg()[0]:.2f}
- In memory: tmpfs. On disk: {run("findmnt", "-no", "FSTYPE", "-T", disk)}. The source, \
`/Applications` and `/tmp` (with the log) are on the same volume.

The installer and its baselines run alternately, in at least {rounds} rounds.

- **Ratio**: the time of the installer divided by that of the baseline (median of the rounds).
  Below 1 the installer is faster. A value in ms is the difference or, without baseline, the time.
- **Quartiles**: half of the rounds are in this range. For “Install one of …” each value is a pair
  of any two rounds.
- **Result**: whether the target is met. If the target is between the quartiles, the machine is too
  noisy to judge it and the result is "unclear".
- **Medians**: of the installer and of the baseline. The times include the start and the window, but
  not the second during which the installer shows the full bar.

The installer flushes the log after each entry and the volume at the end. On a disk, `dpkg` and the
commands with `sync -f` are durable, too; the other baselines leave their data in the page cache."""


class Report:
    def __init__(self, targets):
        self.targets = targets  # upper limits, by measurement and baseline
        self.lines, self.results = [], []

    def add(self, *lines):
        self.lines += lines
        print(*lines, sep="\n", flush=True)

    def section(self, title):
        self.add("", f"## {title}", "",
                 "| Measurement | Baseline | Ratio | Quartiles | Target | Result | Medians |",
                 "|---|---|--:|--:|--:|---|--:|")

    def add_row(self, measurement, baseline, values, medians="", unit=""):
        """Compares the values with the target of the measurement. Each value belongs to one round;
        for “Install one of …” each value is a pair of any two rounds."""
        low, middle, high = statistics.quantiles(values, n=4)
        target = self.targets.get((measurement, baseline), "")
        result = ""
        if target:
            limit = float(target.split()[1])
            result = "met" if high <= limit else "**missed**" if low > limit else "unclear"
            self.results.append(result)
        digits = 1 if unit else 2
        self.add(f"| {measurement} | {baseline} | {middle:.{digits}f}{unit} | {low:.{digits}f} to "
                 f"{high:.{digits}f}{unit} | {target} | {result} | {medians} |")

    def add_ratio(self, measurement, baseline, pairs, unit="ms"):
        """Compares pairs of a figure of the installer and one of the baseline."""
        pairs = list(pairs)
        medians = [statistics.median(figures) for figures in zip(*pairs)]
        text = " / ".join(f"{figure:.{0 if figure >= 100 else 1}f}" for figure in medians)
        ratios = [installer / other for installer, other in pairs]
        self.add_row(measurement, baseline, ratios, f"{text} {unit}")
