"""Draws charts as SVG text, without a library."""

import math
from xml.sax.saxutils import escape

COLOURS = {'bare': '#888888', 'library': '#1f77b4'}
STYLE = '<style>text{font:11px sans-serif;fill:#333}.title{font-weight:bold}rect.back{fill:#fff}</style>'
PANEL_WIDTH, PANEL_HEIGHT = 400, 260
MARGIN_LEFT, MARGIN_RIGHT, MARGIN_TOP, MARGIN_BOTTOM = 52, 20, 26, 34
BAR_HEIGHT, BAR_LEFT, BAR_SCALE = 13, 230, 480
TENTH = 0.1


def text(x, y, words, anchor='start', kind=''):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" class="{kind}">{escape(words)}</text>'


def line(x1, y1, x2, y2, stroke='#ddd'):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{stroke}"/>'


def picture(width, height, parts):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n{STYLE}\n<rect class="back" width="{width}" height="{height}"/>\n'
            + '\n'.join(parts) + '\n</svg>\n')


def short(value):
    for limit, unit in ((1e9, 'G'), (1e6, 'M'), (1e3, 'k')):
        if value >= limit:
            return f'{value / limit:g}{unit}'
    return f'{value:g}'


class LogScale:
    def __init__(self, values, start, end):
        self.low = math.floor(math.log10(min(values)))
        self.high = max(math.ceil(math.log10(max(values))), self.low + 1)
        self.start, self.end = start, end

    def at(self, value):
        return self.start + (math.log10(value) - self.low) / (self.high - self.low) * (self.end - self.start)

    def ticks(self):
        return [10.0 ** power for power in range(self.low, self.high + 1)]


def log_log_panel(title, x_words, lines, left):
    """Each of `lines` is a pair of a subject and its points (x, y)."""
    points = [point for _, some in lines for point in some]
    x_scale = LogScale([x for x, _ in points], left + MARGIN_LEFT, left + PANEL_WIDTH - MARGIN_RIGHT)
    y_scale = LogScale([y for _, y in points], 20 + PANEL_HEIGHT - MARGIN_BOTTOM, 20 + MARGIN_TOP)
    parts = [text(left + MARGIN_LEFT, 36, title, kind='title'),
             text(left + PANEL_WIDTH - MARGIN_RIGHT, 20 + PANEL_HEIGHT - 4, x_words, 'end')]
    for tick in x_scale.ticks():
        parts.append(line(x_scale.at(tick), y_scale.start, x_scale.at(tick), y_scale.end))
        parts.append(text(x_scale.at(tick), y_scale.start + 13, short(tick), 'middle'))
    for tick in y_scale.ticks():
        parts.append(line(x_scale.start, y_scale.at(tick), x_scale.end, y_scale.at(tick)))
        parts.append(text(x_scale.start - 4, y_scale.at(tick) + 4, short(tick), 'end'))
    for subject, some in lines:
        path = ' '.join(f'{x_scale.at(x):.1f},{y_scale.at(y):.1f}' for x, y in some)
        parts.append(f'<polyline points="{path}" fill="none" stroke="{COLOURS[subject]}"/>')
    return parts


def legend(left):
    parts = []
    for subject, colour in COLOURS.items():
        parts.append(line(left, 12, left + 18, 12, colour))
        parts.append(text(left + 22, 16, subject))
        left += 90
    return parts


def log_log(panels, x_words):
    """`panels` maps titles to lines."""
    parts = legend(MARGIN_LEFT)
    for i, (title, lines) in enumerate(panels.items()):
        parts += log_log_panel(title, x_words, lines, i * PANEL_WIDTH)
    return picture(len(panels) * PANEL_WIDTH, 24 + PANEL_HEIGHT, parts)


def bars(values):
    """`values` maps labels to ratios of the library's time to bare's. Lines mark a ratio of 1 and of a tenth."""
    parts = []
    top = 22
    for label, value in values.items():
        parts.append(text(BAR_LEFT - 6, top + BAR_HEIGHT - 3, label, 'end'))
        parts.append(f'<rect x="{BAR_LEFT}" y="{top}" width="{value * BAR_SCALE:.1f}" height="{BAR_HEIGHT - 2}" '
                     f'fill="{COLOURS["library"]}"/>')
        parts.append(text(BAR_LEFT + max(value, TENTH) * BAR_SCALE + 4, top + BAR_HEIGHT - 3, f'{value:.3f}'))
        top += BAR_HEIGHT
    for mark in (TENTH, 1):
        parts.append(line(BAR_LEFT + mark * BAR_SCALE, 18, BAR_LEFT + mark * BAR_SCALE, top, COLOURS['bare']))
    parts.append(text(BAR_LEFT + TENTH * BAR_SCALE, 14, 'a tenth', 'middle'))
    parts.append(text(BAR_LEFT + BAR_SCALE, 14, 'bare', 'middle'))
    return picture(BAR_LEFT + BAR_SCALE + 40, top + 6, parts)
