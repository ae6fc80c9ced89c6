"""Compares what independent parsers find in an exported page with the statistics; see tools/readers."""
import csv
import re
import sys
from pathlib import Path
from urllib.parse import unquote

# The column of the statistics that a header of the page means, and how many significant digits the page has.
NUMBERS = {'Count': 'count', 'Missing': 'missing', 'Minimum': 'minimum', 'Mean': 'mean', 'Maximum': 'maximum'}


def html5lib_rows(page):
    import html5lib
    parser = html5lib.HTMLParser(tree=html5lib.getTreeBuilder('etree'), namespaceHTMLElements=False)
    tree = parser.parse(page.read_bytes(), transport_encoding=None)
    errors = [error for error in parser.errors if error[1] != 'non-void-element-with-trailing-solidus']
    if errors:
        raise SystemExit(f'    parse errors: {errors}')
    return [list(row) for row in tree.iter('tr')], tree


def lxml_rows(page):
    import lxml.html
    tree = lxml.html.parse(str(page), lxml.html.HTMLParser(encoding='utf-8'))
    return [list(row) for row in tree.iter('tr')], tree


def table_of(rows):
    """Header texts, and a list of texts for each row."""
    texts = [[''.join(cell.itertext()).strip() for cell in row] for row in rows]
    return texts[0], texts[1:]


def statistics_of(path):
    with open(path, encoding='utf-8-sig', newline='') as file:
        return list(csv.DictReader(file))


def is_same_number(shown, exact):
    """The page shows as many digits as the grid does."""
    if not shown and not exact:
        return True
    if not shown or not exact:
        return False
    if re.fullmatch(r'\d{4}-\d\d-\d\d.*', exact):
        return shown == exact
    return abs(float(shown.replace(',', '')) - float(exact)) <= 1e-5 * max(abs(float(exact)), 1e-300)


def compare_with_statistics(header, rows, statistics):
    name = next(iter(statistics[0]))
    wanted = {h: NUMBERS[h] for h in header if h in NUMBERS}
    assert wanted, f'no numbers among {header}'
    assert len(rows) == len(statistics), f'{len(rows)} rows, {len(statistics)} columns in the file'
    compared = 0
    for row, exact in zip(rows, statistics):
        cells = dict(zip(header, row))
        assert cells[header[0]] == exact[name], (cells[header[0]], exact[name])
        for shown, key in wanted.items():
            if shown not in ('Count', 'Missing') and exact[key] == '' and cells[shown] != '':
                continue  # a date has its extremes elsewhere
            assert is_same_number(cells[shown], exact[key]), (exact[name], shown, cells[shown], exact[key])
            compared += 1
    print(f'    {len(rows)} rows, {compared} numbers are equal')


def read_page(page, rows_of, statistics):
    rows, tree = rows_of(page)
    header, texts = table_of(rows)
    for row in rows[1:]:
        assert len(row) == len(header), (len(row), len(header))
    compare_with_statistics(header, texts, statistics)
    images = [image.get('src') for image in tree.iter('img')]
    assert images, 'no pictures'
    for source in images:
        assert (page.parent / unquote(source)).is_file(), source
    print(f'    {len(images)} pictures are where the page says')


def read_spreadsheet(path, statistics):
    with open(path, encoding='utf-8', newline='') as file:
        lines = [line for line in csv.reader(file) if any(line)]
    start = next(i for i, line in enumerate(lines) if 'Mean' in line)
    compare_with_statistics(lines[start], [line[:len(lines[start])] for line in lines[start + 1:]], statistics)


def read_clipboard(path, page):
    document = path.read_bytes().removesuffix(b'\n')  # the line feed in front of the end marker
    head = (b'<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Strict//EN" '
            b'"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd"><html><head><style><!--')
    assert document.startswith(head), document[:200]
    assert document.endswith(b'</table></body> </html>'), document[-80:]
    table = document[document.index(b'<table>'):document.index(b'</body>')]
    whole = page.read_bytes()
    expected = whole[whole.index(b'<table>'):whole.index(b'</table>') + 8]
    pictures = rb"<img src='[^']*?(_\d+_\d+\.bmp)'"
    assert re.sub(pictures, rb"<img src='\1'", table) == re.sub(pictures, rb"<img src='\1'", expected), 'another table'
    print(f'    {len(document)} bytes, the table of the page')


def main(kind, first, second):
    first, second = Path(first), Path(second)
    try:
        if kind == 'html5lib':
            read_page(first, html5lib_rows, statistics_of(second))
        elif kind == 'lxml':
            read_page(first, lxml_rows, statistics_of(second))
        elif kind == 'spreadsheet':
            read_spreadsheet(first, statistics_of(second))
        else:
            read_clipboard(first, second)
    except AssertionError as difference:
        raise SystemExit(f'    differs: {difference}')


main(*sys.argv[1:])
