"""Draws charts as SVG, with nothing but text."""

import math
from xml.sax.saxutils import escape

COLOURS = {'bare': '#888888'}
FURTHER_COLOURS = ('#1f77b4', '#d62728', '#2ca02c')
STYLE = '<style>text{font:11px sans-serif;fill:#333}.title{font-weight:bold}rect.back{fill:#fff}</style>'
PANEL_WIDTH, PANEL_HEIGHT = 300, 200
MARGIN_LEFT, MARGIN_RIGHT, MARGIN_TOP, MARGIN_BOTTOM = 52, 12, 26, 34


def colour(names, name):
    others = [other for other in names if other not in COLOURS]
    return COLOURS.get(name) or FURTHER_COLOURS[others.index(name) % len(FURTHER_COLOURS)]


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


def log_log_panel(title, series, left, top, x_words, y_words):
    """`series` gives the points (x, y) by name."""
    points = [point for some in series.values() for point in some]
    x_scale = LogScale([x for x, _ in points], left + MARGIN_LEFT, left + PANEL_WIDTH - MARGIN_RIGHT)
    y_scale = LogScale([y for _, y in points], top + PANEL_HEIGHT - MARGIN_BOTTOM, top + MARGIN_TOP)
    parts = [text(left + MARGIN_LEFT, top + 16, f'{title}: {y_words}', kind='title'),
             text(left + PANEL_WIDTH - MARGIN_RIGHT, top + PANEL_HEIGHT - 4, x_words, 'end')]
    for tick in x_scale.ticks():
        parts.append(line(x_scale.at(tick), y_scale.start, x_scale.at(tick), y_scale.end))
        parts.append(text(x_scale.at(tick), y_scale.start + 13, short(tick), 'middle'))
    for tick in y_scale.ticks():
        parts.append(line(x_scale.start, y_scale.at(tick), x_scale.end, y_scale.at(tick)))
        parts.append(text(x_scale.start - 4, y_scale.at(tick) + 4, short(tick), 'end'))
    for name, some in series.items():
        path = ' '.join(f'{x_scale.at(x):.1f},{y_scale.at(y):.1f}' for x, y in some)
        parts.append(f'<polyline points="{path}" fill="none" stroke="{colour(series, name)}" stroke-width="1.6"/>')
    return parts


def legend(names, left, top):
    parts = []
    for name in names:
        parts.append(line(left, top - 4, left + 18, top - 4, colour(names, name)))
        parts.append(text(left + 22, top, name))
        left += 36 + 7 * len(name)
    return parts


def log_log(panels, x_words, y_words, columns=3):
    """`panels` gives the series by title."""
    names = list(dict.fromkeys(name for series in panels.values() for name in series))
    parts = legend(names, MARGIN_LEFT, 18)
    for i, (title, series) in enumerate(panels.items()):
        parts += log_log_panel(title, series, i % columns * PANEL_WIDTH, 26 + i // columns * PANEL_HEIGHT,
                               x_words, y_words)
    rows = -(-len(panels) // columns)
    return picture(min(columns, len(panels)) * PANEL_WIDTH, 30 + rows * PANEL_HEIGHT, parts)


def bars(rows, names):
    """`rows` gives a value by name for each label; a line marks the value 1."""
    left, scale, height = 230, 380, 10
    parts = legend(names, left, 18)
    top = 30
    for label, values in rows.items():
        parts.append(text(left - 6, top + height * len(values) / 2 + 4, label, 'end'))
        for name, value in values.items():
            parts.append(f'<rect x="{left}" y="{top}" width="{value * scale:.1f}" height="{height - 1}" '
                         f'fill="{colour(names, name)}"/>')
            parts.append(text(left + value * scale + 4, top + height - 1, f'{value:.2f}'))
            top += height
        top += 8
    parts.append(line(left + scale, 26, left + scale, top, '#000'))
    return picture(left + int(scale * 1.4), top + 6, parts)
