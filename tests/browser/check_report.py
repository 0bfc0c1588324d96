#!/usr/bin/env python3
"""The HTML report of `kovrel decode --format html`, opened in headless Chromium.

    check_report.py KOVREL WORKDIR

Writes pages with the tool, lets Chromium run their script (--dump-dom after
--virtual-time-budget) and compares what the page shows with what
`kovrel decode --format json` says of the same input: the overview counts,
one plot point per positioned record, the rows left by a callsign filter,
the item summaries of an opened record, the problems linked to their
records, the records left out by --html-limit, and no console error.
Exits 77 (skipped) when Chromium is not installed.
"""
import json
import os
import re
import shutil
import subprocess
import sys

SKIP = 77


def chromium():
    for name in ('chromium', 'chromium-browser', 'google-chrome', 'google-chrome-stable'):
        path = shutil.which(name)
        if path:
            return path
    return None


def dump(browser, page, fragment=''):
    """The page's DOM once its script ran, and the console lines Chromium logged."""
    run = subprocess.run([browser, '--headless', '--no-sandbox', '--disable-gpu', '--no-first-run',
                          '--enable-logging=stderr', '--v=0', '--virtual-time-budget=10000',
                          '--dump-dom', 'file://' + os.path.abspath(page) + fragment],
                         capture_output=True, text=True, timeout=120)
    console = [line for line in run.stderr.splitlines() if 'CONSOLE' in line or 'Uncaught' in line]
    return run.stdout, console


def records_of(kovrel, args):
    out = subprocess.run([kovrel, 'decode', '--format', 'json'] + args, capture_output=True, text=True, check=False)
    return [json.loads(line) for line in out.stdout.splitlines() if line]


def main():
    kovrel, work = sys.argv[1], sys.argv[2]
    browser = chromium()
    if not browser:
        print('chromium is not installed (apt-get install chromium): the browser tests are skipped')
        return SKIP
    os.makedirs(work, exist_ok=True)
    failures = []

    def check(ok, what):
        print(('ok   ' if ok else 'FAIL ') + what)
        if not ok:
            failures.append(what)

    def text_of(dom, element_id):
        m = re.search(r'id="%s"[^>]*>([^<]*)<' % element_id, dom)
        return m.group(1) if m else None

    # The built-in sample.
    page = os.path.join(work, 'report_sample.html')
    subprocess.run([kovrel, 'decode', '--format', 'html', '-o', page], check=True)
    records = records_of(kovrel, [])
    dom, console = dump(browser, page)
    check(console == [], 'no console message on the sample page: %s' % console[:3])
    check(text_of(dom, 'shown') == '%d of %d records' % (len(records), len(records)), 'every record in the table')
    check('<b>%d</b> records' % len(records) in dom, 'overview counts the records')
    items = sum(r['item_count'] for r in records)
    check('<b>%d</b> items' % items in dom, 'overview counts the items')
    positioned = sum(1 for r in records if 'lat' in r['fields'] or 'rho' in r['fields'])
    points = len(re.findall(r'<circle [^>]*class="pt', dom))
    check(points == positioned, 'a plot point per positioned record (%d points, %d records)' % (points, positioned))
    sources = {(r['cat'], r['fields'].get('sac'), r['fields'].get('sic')) for r in records}
    check(len(re.findall(r'<tr class="source"', dom)) == len(sources), 'a line per source')

    # Filtering by callsign leaves the records of that callsign.
    callsigns = [r['fields']['callsign'] for r in records if 'callsign' in r['fields']]
    check(callsigns != [], 'the sample has callsigns')
    if callsigns:
        wanted = callsigns[len(callsigns) // 2]
        dom, console = dump(browser, page, '#filter=callsign=' + wanted.lower())
        expected = callsigns.count(wanted)
        check(text_of(dom, 'shown') == '%d of %d records' % (expected, len(records)),
              'callsign=%s leaves %d rows (%s)' % (wanted, expected, text_of(dom, 'shown')))
        cells = re.findall(r'<tr class="row[^"]*" data-row="\d+">((?:<td>[^<]*</td>)+)</tr>', dom)
        # The table draws a screenful of rows at a time.
        check(0 < len(cells) <= expected and all('<td>%s</td>' % wanted in c for c in cells),
              'the rows drawn are those of %s' % wanted)
        dom, console = dump(browser, page, '#filter=callsign=NOBODY99')
        check(text_of(dom, 'shown') == '0 of %d records' % len(records), 'an unknown callsign leaves no row')

    # Each keyword of the filter box keeps what `kovrel --filter` would.
    def first(key):
        return next(r['fields'][key] for r in records if key in r['fields'])
    track, mode3a, icao = first('track'), first('mode3a'), first('icao')
    sac, sic = first('sac'), first('sic')
    cases = [
        ('track=%d' % track, lambda r: r['fields'].get('track') == track),
        ('mode3a=%s' % mode3a, lambda r: r['fields'].get('mode3a') == mode3a),
        ('icao=%s' % icao.lower(), lambda r: r['fields'].get('icao') == icao),
        ('sacsic=%03d/%03d' % (sac, sic), lambda r: (r['fields'].get('sac'), r['fields'].get('sic')) == (sac, sic)),
        ('sacsic=%d' % sac, lambda r: r['fields'].get('sac') == sac),
        ('type=track', lambda r: r['fields'].get('msgtype', '').split(' ')[0].lower() == 'track'),
        ('cat=48,62', lambda r: r['cat'] in (48, 62)),
        ('cat=21%20track=' + str(track), lambda r: r['cat'] == 21 and r['fields'].get('track') == track),
    ]
    for text, keep in cases:
        dom, console = dump(browser, page, '#filter=' + text)
        expected = sum(1 for r in records if keep(r))
        check(text_of(dom, 'shown') == '%d of %d records' % (expected, len(records)),
              'filter %s leaves %d rows (%s)' % (text, expected, text_of(dom, 'shown')))

    # Sorting: the first row drawn is the latest time.
    dom, console = dump(browser, page, '#sort=-time')
    latest = max(r['fields']['tod'] for r in records if 'tod' in r['fields'])
    first_row = re.search(r'<tr class="row[^"]*" data-row="\d+">((?:<td>[^<]*</td>)+)</tr>', dom)
    check(first_row is not None and '<td>%s</td>' % latest in first_row.group(1), 'sorted by time, latest first')

    # The CAT240 sweep: a strip per video message (not per video summary).
    dom, console = dump(browser, page, '#video=1')
    messages = sum(1 for r in records if r['cat'] == 240 and
                   not any('VIDEO_SUMMARY' in i['summary'] for i in r['items']))
    strips = re.search(r'<div class="strips">(.*?)</div>', dom)
    check(messages > 0 and strips is not None and strips.group(1).count('<svg') == messages,
          'the sweep draws %d radials' % messages)
    check(console == [], 'no console message drawing the sweep: %s' % console[:3])

    # Opening a record shows its items' summaries, in order.
    for n in (1, len(records) // 2, len(records)):
        dom, console = dump(browser, page, '#open=%d' % n)
        summaries = re.findall(r'<p class="item-summary">([^<]*)</p>', dom)
        want = [i['summary'].replace('&', '&amp;') for i in records[n - 1]['items']]
        check(summaries == want, 'record #%d shows the summaries of its %d items' % (n, len(want)))
        check(console == [], 'no console message opening record #%d: %s' % (n, console[:3]))

    # A bad block: its problem links to the record where the block failed.
    raw = os.path.join(work, 'report_bad.ast')
    with open(raw, 'wb') as f:
        f.write(bytes([0x30, 0x00, 0x06, 0x80, 0x19, 0x01]))                    # one good record
        f.write(bytes([0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06]))  # I048/130 cut short
    bad_page = os.path.join(work, 'report_bad.html')
    subprocess.run([kovrel, 'decode', '--format', 'html', '-o', bad_page, raw], check=False)
    dom, console = dump(browser, bad_page)
    check(re.search(r'<p class="problem"><a href="#open=2">block 2 at @6', dom) is not None,
          'the bad block links to record #2')
    check('<span class="bad"><b>1</b> bad block</span>' in dom, 'overview counts the bad block')
    check(console == [], 'no console message on the bad page: %s' % console[:3])

    # --html-limit: the first records only, and the page says so.
    limited = os.path.join(work, 'report_limited.html')
    subprocess.run([kovrel, 'decode', '--format', 'html', '--html-limit', '100', '-o', limited], check=True)
    dom, console = dump(browser, limited)
    check(text_of(dom, 'shown') == '100 of 100 records', 'the table holds 100 records')
    check('%d more were left out' % (len(records) - 100) in dom, 'the page says how many were left out')
    check('<b>%d</b> records' % len(records) in dom, 'the overview still counts every record')

    print('%d failure(s)' % len(failures))
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
