// The kovrel HTML report: draws the overview, the plot, the record table
// and the record opened from the data the tool embedded in the page (see
// output_html.h for its shape). No library, nothing fetched.
//
// The URL fragment drives the page as the controls do, so that a link (or
// a headless browser) can show a given view:
//   #filter=callsign=DLH123%20cat=48&src=48:25/1&from=12:00&to=12:30&sort=-time&open=7
// filter: the text of the filter box; src: a source (CAT:SAC/SIC); from, to:
// times of day; sort: a column heading in lower case, '-' before it for
// descending order; open: the record (its # in the table) to show; video:
// any value draws the CAT240 sweeps at once.
(function () {
  'use strict';

  // Columns of an embedded row.
  const BLOCK = 0, REC = 1, CAT = 2, SAC = 3, SIC = 4, TOD = 5, TYPE = 6, TRK = 7, A = 8, CS = 9, ICAO = 10,
    FL = 11, LAT = 12, LON = 13, RHO = 14, THETA = 15, FLAGS = 16;
  const ROW_HEIGHT = 21;
  const PALETTE = ['#4dabf7', '#ffa94d', '#69db7c', '#f783ac', '#ffd43b', '#b197fc', '#63e6be', '#ff8787',
    '#a9e34b', '#74c0fc', '#e599f7', '#ffc078'];

  const meta = JSON.parse(document.getElementById('kovrel-meta').textContent);
  const rows = [];
  const groups = [];
  const groupOf = [];
  for (const script of document.querySelectorAll('script[type="application/x-kovrel-group"]')) {
    const g = JSON.parse(script.textContent);
    const index = groups.length;
    groups.push({ first: rows.length, firstItem: g.f, data: g.d, texts: null });
    for (const r of g.r) {
      rows.push(r);
      groupOf.push(index);
    }
    script.remove();
  }

  // ---- Small helpers ----------------------------------------------------
  function el(tag, props, ...children) {
    const e = document.createElement(tag);
    if (props) for (const k in props) {
      if (k === 'class') e.className = props[k];
      else if (k === 'text') e.textContent = props[k];
      else if (k.startsWith('on')) e.addEventListener(k.slice(2), props[k]);
      else e.setAttribute(k, props[k]);
    }
    for (const c of children) if (c !== null && c !== undefined) e.append(c);
    return e;
  }
  const SVG = 'http://www.w3.org/2000/svg';
  function svg(tag, attrs) {
    const e = document.createElementNS(SVG, tag);
    for (const k in attrs) e.setAttribute(k, attrs[k]);
    return e;
  }
  function pad(n, w) { return String(n).padStart(w, '0'); }
  function timeText(ms) {
    if (ms === null || ms === undefined) return '';
    return pad(Math.floor(ms / 3600000), 2) + ':' + pad(Math.floor(ms / 60000) % 60, 2) + ':' +
      pad(Math.floor(ms / 1000) % 60, 2) + '.' + pad(ms % 1000, 3);
  }
  function parseTime(text) {
    const m = /^\s*(\d{1,2}):(\d{2})(?::(\d{2})(?:\.(\d{1,3}))?)?\s*$/.exec(text || '');
    if (!m) return null;
    return ((+m[1] * 60 + +m[2]) * 60 + (m[3] ? +m[3] : 0)) * 1000 + (m[4] ? +m[4].padEnd(3, '0') : 0);
  }
  function sourceKey(r) { return r[CAT] + ':' + (r[SAC] === null ? '-' : r[SAC] + '/' + r[SIC]); }
  function sourceText(sac, sic) { return sac === null ? '-' : pad(sac, 3) + '/' + pad(sic, 3); }
  function mode3aText(v) { return v === null ? '' : pad(v.toString(8), 4); }
  function icaoText(v) { return v === null ? '' : pad(v.toString(16).toUpperCase(), 6); }
  function levelText(v) { return v === null ? '' : 'FL' + Math.round(v / 100); }
  function positionText(r) {
    if (r[LAT] !== null) return r[LAT].toFixed(5) + ' ' + r[LON].toFixed(5);
    if (r[RHO] !== null) return r[RHO].toFixed(2) + ' NM ' + r[THETA].toFixed(2) + '\u00b0';
    return '';
  }
  function typeText(r) { return r[TYPE] === null ? '' : meta.types[r[TYPE]]; }
  const colours = new Map();
  for (const s of meta.sources) {
    const key = s.cat + ':' + (s.sac === null ? '-' : s.sac + '/' + s.sic);
    colours.set(key, PALETTE[colours.size % PALETTE.length]);
  }
  function colourOf(r) { return colours.get(sourceKey(r)) || '#ced4da'; }

  // ---- Overview -----------------------------------------------------------
  function countSpan(n, one, many, bad) {
    return el('span', { class: bad && n > 0 ? 'bad' : '' }, el('b', { text: String(n) }), ' ' + (n === 1 ? one : many));
  }
  function drawOverview() {
    const c = meta.counts;
    const section = document.getElementById('overview');
    section.append(el('h2', { text: 'Overview' }),
      el('div', { class: 'counts' }, countSpan(c.blocks, 'block', 'blocks'),
        countSpan(c.invalid, 'bad block', 'bad blocks', true), countSpan(c.records, 'record', 'records'),
        countSpan(c.items, 'item', 'items'), countSpan(c.octets, 'octet', 'octets')));
    if (meta.left_out > 0)
      section.append(el('p', { class: 'note', text: 'The table holds the first ' + meta.embedded + ' records; ' +
        meta.left_out + ' more were left out (--html-limit ' + meta.limit + '). The overview counts them all.' }));
    if (c.records === 0 && rows.length === 0) section.append(el('p', { class: 'note', text: 'No record decoded.' }));
    if (meta.sources.length) {
      const table = el('table', { class: 'sources' }, el('tr', null, el('th', { text: 'Category' }),
        el('th', { text: 'SAC/SIC' }), el('th', { text: 'Records' }), el('th', { text: 'First' }),
        el('th', { text: 'Last' }), el('th', { text: 'Message types' })));
      for (const s of meta.sources) {
        const key = s.cat + ':' + (s.sac === null ? '-' : s.sac + '/' + s.sic);
        const types = s.types.map(t => t[0] + ' ' + t[1]).join(', ');
        table.append(el('tr', { class: 'source', 'data-source': key },
          el('td', null, el('span', { class: 'sw', style: 'background:' + colours.get(key) }), 'CAT' + pad(s.cat, 3)),
          el('td', { text: sourceText(s.sac, s.sic) }), el('td', { class: 'n', text: String(s.records) }),
          el('td', { text: timeText(s.first) }), el('td', { text: timeText(s.last) }), el('td', { text: types })));
      }
      section.append(table);
    }
    if (meta.problems.length) {
      section.append(el('h2', { text: 'Problems', style: 'margin-top:10px' }));
      for (const p of meta.problems) {
        const line = el('p', { class: 'problem' });
        if (p.row >= 0 && p.row < rows.length)
          line.append(el('a', { href: '#open=' + (p.row + 1), text: p.text }));
        else
          line.append(p.text);
        section.append(line);
      }
    }
  }

  // ---- Filtering and sorting ---------------------------------------------
  const state = { filter: '', src: '', from: '', to: '', sort: -1, down: false, selected: -1 };
  let shown = [];  // indexes of the rows that pass, in table order

  // One condition of the filter box: keyword=value as `kovrel --filter`
  // reads it, or a word looked for anywhere in the row.
  function condition(token) {
    const eq = token.indexOf('=');
    if (eq < 0) {
      const word = token.toLowerCase();
      return r => rowText(r).includes(word);
    }
    const key = token.slice(0, eq).toLowerCase().replace(/[\s/_-]/g, '');
    const value = token.slice(eq + 1).trim();
    const upper = value.toUpperCase();
    switch (key) {
      case 'callsign': return r => r[CS] !== null && r[CS].toUpperCase() === upper;
      case 'mode3a': case 'squawk': {
        const v = /^[0-7]{1,4}$/.test(value) ? parseInt(value, 8) : NaN;
        return r => r[A] === v;
      }
      case 'track': { const v = Number(value); return r => r[TRK] === v; }
      case 'icao': case 'address': case 'icaoaddress': {
        const v = /^[0-9a-fA-F]{1,6}$/.test(value) ? parseInt(value, 16) : NaN;
        return r => r[ICAO] === v;
      }
      case 'sacsic': case 'sac': {
        const m = /^(\d+)(?:\/(\d+))?$/.exec(value);
        if (!m) return () => false;
        const sac = +m[1], sic = m[2] === undefined ? null : +m[2];
        return r => r[SAC] === sac && (sic === null || r[SIC] === sic);
      }
      case 'type': case 'msgtype': {
        const word = value.toLowerCase();
        return r => r[TYPE] !== null && meta.types[r[TYPE]].split(/\s+/)[0].toLowerCase() === word;
      }
      case 'cat': {
        const cats = value.split(',').map(Number);
        return r => cats.includes(r[CAT]);
      }
      default: {
        const word = token.toLowerCase();
        return r => rowText(r).includes(word);
      }
    }
  }
  function rowText(r) {
    return ['CAT' + pad(r[CAT], 3), sourceText(r[SAC], r[SIC]), timeText(r[TOD]), typeText(r), r[TRK] ?? '',
      mode3aText(r[A]), r[CS] ?? '', icaoText(r[ICAO]), levelText(r[FL]), positionText(r)].join(' ').toLowerCase();
  }
  function applyFilter() {
    const tests = state.filter.split(/\s+/).filter(t => t).map(condition);
    const from = parseTime(state.from), to = parseTime(state.to);
    const inTime = ms => {
      if (from === null && to === null) return true;
      if (ms === null) return false;
      if (from !== null && to !== null && from > to) return ms >= from || ms <= to;  // past midnight
      return (from === null || ms >= from) && (to === null || ms <= to);
    };
    shown = [];
    for (let i = 0; i < rows.length; ++i) {
      const r = rows[i];
      if (state.src && sourceKey(r) !== state.src) continue;
      if (!inTime(r[TOD])) continue;
      let ok = true;
      for (const t of tests) if (!t(r)) { ok = false; break; }
      if (ok) shown.push(i);
    }
    sortShown();
  }
  const COLUMNS = [
    ['#', (r, i) => i + 1, (r, i) => i],
    ['Block', r => r[BLOCK] + '.' + r[REC], r => r[BLOCK] * 1e4 + r[REC]],
    ['Time', r => timeText(r[TOD]), r => r[TOD]],
    ['Cat', r => pad(r[CAT], 3), r => r[CAT]],
    ['SAC/SIC', r => sourceText(r[SAC], r[SIC]), r => r[SAC] === null ? null : r[SAC] * 256 + r[SIC]],
    ['Type', typeText, r => typeText(r) || null],
    ['Track', r => r[TRK] ?? '', r => r[TRK]],
    ['Mode 3/A', r => mode3aText(r[A]), r => r[A]],
    ['Callsign', r => r[CS] ?? '', r => r[CS]],
    ['Address', r => icaoText(r[ICAO]), r => r[ICAO]],
    ['Level', r => levelText(r[FL]), r => r[FL]],
    ['Position', positionText, r => r[LAT] ?? r[RHO]],
  ];
  function sortShown() {
    if (state.sort <= 0) {
      if (state.down) shown.reverse();
      return;
    }
    const key = COLUMNS[state.sort][2];
    const sign = state.down ? -1 : 1;
    shown.sort((a, b) => {
      const x = key(rows[a], a), y = key(rows[b], b);
      if (x === y) return a - b;
      if (x === null || x === undefined) return 1;
      if (y === null || y === undefined) return -1;
      return (x < y ? -1 : 1) * sign;
    });
  }

  // ---- The record table, drawn a screenful at a time ----------------------
  let scroller, tbody, count, heads = [];
  function drawTableFrame() {
    const section = document.getElementById('records');
    const text = el('input', { type: 'text', id: 'filter', placeholder: 'callsign=DLH123 mode3a=7700 sacsic=25/1 track=12 icao=3C654A type=track cat=48,62 or any text' });
    const sources = el('select', { id: 'source' }, el('option', { value: '', text: 'every source' }));
    for (const s of meta.sources) {
      const key = s.cat + ':' + (s.sac === null ? '-' : s.sac + '/' + s.sic);
      sources.append(el('option', { value: key, text: 'CAT' + pad(s.cat, 3) + ' ' + sourceText(s.sac, s.sic) }));
    }
    const from = el('input', { type: 'text', class: 'time', id: 'from', placeholder: 'from 12:00' });
    const to = el('input', { type: 'text', class: 'time', id: 'to', placeholder: 'to 12:30' });
    count = el('span', { class: 'shown', id: 'shown' });
    const changed = () => {
      state.filter = text.value; state.src = sources.value; state.from = from.value; state.to = to.value;
      refresh();
    };
    for (const c of [text, from, to]) c.addEventListener('input', changed);
    sources.addEventListener('change', changed);
    drawTableFrame.controls = { text, sources, from, to };
    const head = el('tr');
    COLUMNS.forEach((c, i) => {
      const th = el('th', { text: c[0], onclick: () => {
        if (state.sort === i) state.down = !state.down; else { state.sort = i; state.down = false; }
        refresh();
      } });
      heads.push(th);
      head.append(th);
    });
    tbody = el('tbody');
    scroller = el('div', { class: 'scroller' }, el('table', { class: 'rows' }, el('thead', null, head), tbody));
    scroller.addEventListener('scroll', () => requestAnimationFrame(drawRows));
    tbody.addEventListener('click', e => {
      const tr = e.target.closest('tr.row');
      if (tr) openRecord(+tr.dataset.row, false);
    });
    section.append(el('h2', { text: 'Records' }), el('div', { class: 'filters' }, text, sources, from, to, count),
      scroller);
  }
  function refresh() {
    applyFilter();
    heads.forEach((th, i) => { th.className = i === state.sort ? (state.down ? 'down' : 'up') : ''; });
    count.textContent = shown.length + ' of ' + rows.length + ' records';
    drawRows();
  }
  function drawRows() {
    const top = scroller.scrollTop;
    const height = scroller.clientHeight || 600;
    const first = Math.max(0, Math.floor(top / ROW_HEIGHT) - 10);
    const last = Math.min(shown.length, first + Math.ceil(height / ROW_HEIGHT) + 20);
    const frag = document.createDocumentFragment();
    const gap = h => el('tr', null, el('td', { class: 'gap', colspan: String(COLUMNS.length), style: 'height:' + h + 'px' }));
    if (first > 0) frag.append(gap(first * ROW_HEIGHT));
    for (let k = first; k < last; ++k) {
      const i = shown[k], r = rows[i];
      const tr = el('tr', { class: 'row' + (r[FLAGS] ? ' bad' : '') + (i === state.selected ? ' sel' : ''), 'data-row': String(i) });
      for (const c of COLUMNS) tr.append(el('td', { text: String(c[1](r, i)) }));
      frag.append(tr);
    }
    if (last < shown.length) frag.append(gap((shown.length - last) * ROW_HEIGHT));
    tbody.replaceChildren(frag);
  }
  function scrollToRow(i) {
    const k = shown.indexOf(i);
    if (k < 0) return;
    const top = k * ROW_HEIGHT, view = scroller.clientHeight || 600;
    if (top < scroller.scrollTop || top > scroller.scrollTop + view - 2 * ROW_HEIGHT)
      scroller.scrollTop = Math.max(0, top - view / 3);
    drawRows();
  }

  // ---- The record opened --------------------------------------------------
  // A group's records, inflated once: [location, profile, video, items],
  // items written in full or as the number of an item written before.
  async function groupTexts(g) {
    if (!g.texts) {
      const binary = atob(g.data);
      const octets = new Uint8Array(binary.length);
      for (let i = 0; i < binary.length; ++i) octets[i] = binary.charCodeAt(i);
      const stream = new Blob([octets]).stream().pipeThrough(new DecompressionStream('deflate-raw'));
      const texts = JSON.parse(await new Response(stream).text());
      g.defined = [];  // the items it writes in full, numbered from g.firstItem
      for (const t of texts) for (const item of t[3]) if (typeof item !== 'number') g.defined.push(item);
      g.texts = texts;
    }
    return g.texts;
  }
  // The item numbered k: in the last group whose first number is not past k.
  async function numberedItem(k) {
    let lo = 0, hi = groups.length - 1;
    while (lo < hi) {
      const mid = (lo + hi + 1) >> 1;
      if (groups[mid].firstItem <= k) lo = mid; else hi = mid - 1;
    }
    const g = groups[lo];
    await groupTexts(g);
    const item = g.defined[k - g.firstItem];
    if (!item) throw new Error('item ' + k + ' is missing');
    return item;
  }
  async function recordTexts(i) {
    const g = groups[groupOf[i]];
    const [where, profile, video, items] = (await groupTexts(g))[i - g.first];
    const whole = [];
    for (const item of items) whole.push(typeof item === 'number' ? await numberedItem(item) : item);
    return [where, profile, video, whole];
  }
  function octetsOf(hex) {
    const o = new Uint8Array(hex.length / 2);
    for (let i = 0; i < o.length; ++i) o[i] = parseInt(hex.substr(2 * i, 2), 16);
    return o;
  }
  function hx(v) { return v.toString(16).toUpperCase().padStart(2, '0'); }
  // The same tables as the library's ast_html_gen_hex_table and _bin_table.
  function hexTable(o) {
    if (!o.length) return '';
    let h = '<table class="hex_table"><tr><th colspan=8 align="left">Octet 1</th><th colspan=8 align="right">Octet 16</th></tr>';
    for (let row = 0; row * 16 < o.length; ++row) {
      h += '<tr>';
      for (let c = 0; c < 16; ++c) h += row * 16 + c < o.length ? '<td>' + hx(o[row * 16 + c]) + '</td>' : '<td>--</td>';
      h += '</tr>';
    }
    return h + '</table>';
  }
  function bitTable(o) {
    if (!o.length) return '';
    let h = '<table class="bin_table">';
    for (let first = 0; first < o.length; first += 4) {
      h += '<tr class="caption_row">';
      for (let i = first; i < first + 4; ++i)
        h += '<th colspan=8>Octet ' + (i + 1) + ' - ' + (i < o.length ? hx(o[i]) : '--') + '</th>';
      h += '</tr><tr class="data_row">';
      for (let i = first; i < first + 4; ++i)
        for (let b = 7; b >= 0; --b) h += i < o.length ? '<td>' + ((o[i] >> b) & 1) + '</td>' : '<td>-</td>';
      h += '</tr>';
    }
    return h + '</table>';
  }
  const BIT_OCTETS = 64, HEX_OCTETS = 1024;
  function escapeHtml(text) {
    return text.replace(/&/g, '&amp;').replace(/</g, '&lt;').replace(/>/g, '&gt;');
  }
  // The record's item table as the library's ast_datarecord_get_detail_html
  // draws it: the length in two digits (the first two of a longer one), the
  // summary cut to 255 characters.
  function itemTable(items) {
    let h = '<table class="detail_table"><tr><th>Dataitem</th><th>Name</th><th>Size</th><th>Summary</th></tr>';
    items.forEach(([id, name, length, , summary], k) => {
      h += (k % 2 ? '<tr class="even_row">' : '<tr>') + '<td>' + id + '</td><td>' + escapeHtml(name) + '</td><td>' +
        String(length).padStart(2, '0').slice(0, 2) + '</td><td>' + escapeHtml(summary.slice(0, 255)) + '</td></tr>';
    });
    return h + '</table><br/>';
  }
  async function openRecord(i, scroll) {
    if (!(i >= 0 && i < rows.length)) return;
    state.selected = i;
    const r = rows[i];
    const section = document.getElementById('record');
    let t;
    try {
      t = await recordTexts(i);
    } catch (e) {
      section.replaceChildren(el('p', { class: 'problem', text: 'This record cannot be shown: ' + e }));
      return;
    }
    const [where, profile, video, items] = t;
    const sep = () => el('span', { class: 'sep', text: '|' });
    const head = el('p', { class: 'head' }, '#' + (i + 1), sep(), 'Block ' + r[BLOCK] + ' at ' + where, sep(),
      'record ' + r[REC], sep(), 'CAT' + pad(r[CAT], 3) + ' ' + profile);
    for (const part of [r[SAC] === null ? '' : 'SAC ' + r[SAC] + ' SIC ' + r[SIC], timeText(r[TOD]),
      r[TRK] === null ? '' : 'TRK ' + r[TRK], r[CS] ?? (r[A] === null ? '' : 'A' + mode3aText(r[A])), positionText(r),
      items.length + (items.length === 1 ? ' item' : ' items'),
      r[FLAGS] & 1 ? 'INVALID: the block stops here' : r[FLAGS] & 2 ? 'in a bad block' : ''])
      if (part) head.append(sep(), part);
    const body = el('div', { class: 'body' });
    body.innerHTML = itemTable(items) + video;
    for (const [id, name, length, hex, summary, detail] of items) {
      const o = octetsOf(hex);
      const item = el('div', { class: 'item' }, el('h3', null, el('span', { class: 'id', text: id }), name,
        el('span', { class: 'len', text: length + (length === 1 ? ' octet' : ' octets') })),
        el('p', { class: 'item-summary', text: summary }));
      if (detail === null) item.append(el('p', { class: 'note', text: 'The detail view of this item is too large to show.' }));
      else if (detail) { const v = el('div', { class: 'view' }); v.innerHTML = detail; item.append(v); }
      const dumps = el('div', { class: 'octets' });
      dumps.innerHTML = hexTable(o) + bitTable(o.subarray(0, BIT_OCTETS));
      item.append(dumps);
      if (length > BIT_OCTETS)
        item.append(el('p', { class: 'note', text: 'Of the ' + length + ' octets, the bit table shows the first ' +
          BIT_OCTETS + (length > HEX_OCTETS ? ', the hexadecimal table the first ' + HEX_OCTETS : '') + '.' }));
      body.append(item);
    }
    section.replaceChildren(el('h2', { text: 'Record #' + (i + 1) }), head, body);
    section.dataset.row = String(i + 1);
    for (const p of document.querySelectorAll('.pt.sel')) p.classList.remove('sel');
    const point = document.getElementById('pt' + i);
    if (point) point.classList.add('sel');
    if (scroll) scrollToRow(i); else drawRows();
  }

  // ---- The plot -----------------------------------------------------------
  // WGS-84 positions share one panel, an equirectangular projection around
  // their extent. Polar positions are drawn per radar in its own range and
  // azimuth frame, the radar at the centre: the records do not say where the
  // radar stands.
  const PLOT = 380, MARGIN = 22;
  function niceStep(span) {
    const raw = span / 4, p = Math.pow(10, Math.floor(Math.log10(raw)));
    for (const m of [1, 2, 5, 10]) if (m * p >= raw) return m * p;
    return 10 * p;
  }
  function north(g) {
    g.append(svg('path', { d: 'M' + (PLOT - 18) + ' 34 l6 -16 l6 16 l-6 -5 z', fill: '#9fb3c8' }));
    const n = svg('text', { x: PLOT - 12, y: 46, class: 'label', 'text-anchor': 'middle' });
    n.textContent = 'N';
    g.append(n);
  }
  function scaleBar(g, pixelsPerNm) {
    const nm = niceStep(PLOT / 2 / pixelsPerNm);
    const w = nm * pixelsPerNm;
    g.append(svg('path', { d: 'M' + MARGIN + ' ' + (PLOT - 14) + ' h' + w, class: 'axis', stroke: '#9fb3c8' }));
    const t = svg('text', { x: MARGIN, y: PLOT - 18, class: 'label' });
    t.textContent = nm + ' NM';
    g.append(t);
  }
  function label(g, x, y, text) {
    const t = svg('text', { x, y, class: 'label' });
    t.textContent = text;
    g.append(t);
  }
  function panel(title) {
    const s = svg('svg', { width: PLOT, height: PLOT, viewBox: '0 0 ' + PLOT + ' ' + PLOT, class: 'map' });
    const box = el('div', { class: 'panel' }, el('h3', { text: title }), s);
    return { box, s };
  }
  // Points and tracks of a panel; at(r) gives [x, y] in pixels.
  function drawPoints(s, list, at) {
    const tracks = new Map();
    for (const i of list) {
      const r = rows[i];
      const id = r[TRK] !== null ? 't' + r[TRK] : r[ICAO] !== null ? 'a' + r[ICAO] : null;
      if (id === null) continue;
      const key = sourceKey(r) + id;
      if (!tracks.has(key)) tracks.set(key, []);
      tracks.get(key).push(i);
    }
    for (const [, members] of tracks) {
      if (members.length < 2) continue;
      members.sort((a, b) => (rows[a][TOD] ?? 0) - (rows[b][TOD] ?? 0) || a - b);
      let d = '';
      for (const i of members) { const [x, y] = at(rows[i]); d += (d ? 'L' : 'M') + x.toFixed(1) + ' ' + y.toFixed(1); }
      s.append(svg('path', { d, class: 'trk', stroke: colourOf(rows[members[0]]) }));
    }
    for (const i of list) {
      const [x, y] = at(rows[i]);
      s.append(svg('circle', { cx: x.toFixed(1), cy: y.toFixed(1), r: 2.5, class: 'pt', id: 'pt' + i, fill: colourOf(rows[i]) }));
    }
  }
  function drawPlot() {
    const wgs = [], polar = new Map();
    for (let i = 0; i < rows.length; ++i) {
      const r = rows[i];
      if (r[LAT] !== null && Math.abs(r[LAT]) <= 90 && Math.abs(r[LON]) <= 180) wgs.push(i);
      else if (r[RHO] !== null) {
        const key = sourceKey(r);
        if (!polar.has(key)) polar.set(key, []);
        polar.get(key).push(i);
      }
    }
    const video = new Map();  // CAT240 records by source
    for (let i = 0; i < rows.length; ++i)
      if (rows[i][CAT] === 240 && !(rows[i][FLAGS] & 1)) {
        const key = sourceKey(rows[i]);
        if (!video.has(key)) video.set(key, []);
        video.get(key).push(i);
      }
    if (!wgs.length && !polar.size && !video.size) return;
    const section = document.getElementById('plot');
    const panels = el('div', { class: 'panels' });
    section.append(el('h2', { text: 'Plot' }), panels);
    if (wgs.length) {
      let s = 90, n = -90, w = 180, e = -180;
      for (const i of wgs) {
        const r = rows[i];
        s = Math.min(s, r[LAT]); n = Math.max(n, r[LAT]); w = Math.min(w, r[LON]); e = Math.max(e, r[LON]);
      }
      const k = Math.cos((s + n) / 2 * Math.PI / 180);
      const span = Math.max((n - s), (e - w) * k, 0.01);
      const ppd = (PLOT - 2 * MARGIN) / span;  // pixels per degree of latitude
      const cx = (w + e) / 2, cy = (s + n) / 2;
      const at = r => [PLOT / 2 + (r[LON] - cx) * k * ppd, PLOT / 2 - (r[LAT] - cy) * ppd];
      const { box, s: map } = panel('WGS-84 positions (' + wgs.length + ')');
      label(map, 6, 14, 'lat ' + s.toFixed(3) + ' to ' + n.toFixed(3) + ', lon ' + w.toFixed(3) + ' to ' + e.toFixed(3));
      scaleBar(map, ppd / 60);
      north(map);
      drawPoints(map, wgs, at);
      panels.append(box);
    }
    for (const [key, list] of polar) {
      let max = 0;
      for (const i of list) max = Math.max(max, rows[i][RHO]);
      max = Math.max(max, 1);
      const step = niceStep(max);
      const outer = Math.ceil(max / step) * step;
      const ppn = (PLOT / 2 - MARGIN) / outer;
      const r0 = rows[list[0]];
      const { box, s: map } = panel('Radar CAT' + pad(r0[CAT], 3) + ' ' + sourceText(r0[SAC], r0[SIC]) +
        ', polar positions (' + list.length + ')');
      for (let ring = step; ring <= outer + 1e-9; ring += step) {
        map.append(svg('circle', { cx: PLOT / 2, cy: PLOT / 2, r: (ring * ppn).toFixed(1), class: 'ring' }));
        label(map, PLOT / 2 + 3, PLOT / 2 - ring * ppn - 2, ring + ' NM');
      }
      map.append(svg('path', { d: 'M' + PLOT / 2 + ' ' + MARGIN + 'V' + (PLOT - MARGIN) + 'M' + MARGIN + ' ' + PLOT / 2 + 'H' + (PLOT - MARGIN), class: 'axis' }));
      scaleBar(map, ppn);
      north(map);
      const at = r => {
        const a = r[THETA] * Math.PI / 180;
        return [PLOT / 2 + Math.sin(a) * r[RHO] * ppn, PLOT / 2 - Math.cos(a) * r[RHO] * ppn];
      };
      drawPoints(map, list, at);
      panels.append(box);
    }
    for (const [key, list] of video) panels.append(sweepPanel(key, list));
    const tip = el('div', { class: 'tip', hidden: '' });
    document.body.append(tip);
    panels.addEventListener('mouseover', e => {
      if (!e.target.classList.contains('pt')) return;
      const r = rows[+e.target.id.slice(2)];
      const who = [r[CS], r[ICAO] === null ? null : icaoText(r[ICAO]), r[A] === null ? null : 'A' + mode3aText(r[A]),
        r[TRK] === null ? null : 'TRK ' + r[TRK]].filter(x => x).join('  ');
      tip.textContent = (who || sourceText(r[SAC], r[SIC])) + '\n' + [levelText(r[FL]), timeText(r[TOD])].filter(x => x).join('  ');
      tip.style.left = e.clientX + 12 + 'px';
      tip.style.top = e.clientY + 12 + 'px';
      tip.hidden = false;
    });
    panels.addEventListener('mouseout', e => { if (e.target.classList.contains('pt')) tip.hidden = true; });
    panels.addEventListener('click', e => {
      if (e.target.classList.contains('pt')) openRecord(+e.target.id.slice(2), true);
    });
  }

  // The radials of a CAT240 source one under the other, in the order they
  // came (range from left to right, amplitude as grey): drawn when asked,
  // since it needs the texts of every group holding one.
  const SWEEP_RADIALS = 2000;
  function sweepPanel(key, list) {
    const r0 = rows[list[0]];
    const box = el('div', { class: 'panel sweep', 'data-source': key },
      el('h3', { text: 'Video CAT240 ' + sourceText(r0[SAC], r0[SIC]) + ' (' + list.length + ' records)' }));
    const button = el('button', { type: 'button', text: 'Draw the sweep' });
    button.addEventListener('click', () => drawSweep(box, list));
    box.append(button);
    return box;
  }
  async function drawSweep(box, list) {
    const strips = [];
    for (const i of list.slice(0, SWEEP_RADIALS)) {
      const g = groups[groupOf[i]];
      const svgText = (await groupTexts(g))[i - g.first][2];
      if (!svgText) continue;
      const holder = document.createElement('template');
      holder.innerHTML = svgText;
      const image = holder.content.querySelector('svg svg');
      const title = holder.content.querySelector('title');
      if (!image) continue;
      if (title) image.append(title);
      strips.push(image);
    }
    const height = Math.max(1, Math.min(8, Math.floor(PLOT / Math.max(1, strips.length))));
    const stack = el('div', { class: 'strips' });
    for (const image of strips) {
      image.setAttribute('width', PLOT);
      image.setAttribute('height', height);
      image.style.display = 'block';
      stack.append(image);
    }
    box.querySelector('button')?.remove();
    box.append(stack, el('p', { class: 'note', text: strips.length + ' radials, range from left to right' +
      (list.length > SWEEP_RADIALS ? ', the first ' + SWEEP_RADIALS : '') }));
  }

  // ---- The URL fragment ---------------------------------------------------
  function fromFragment() {
    const wanted = {};
    for (const part of location.hash.replace(/^#/, '').split('&')) {
      const eq = part.indexOf('=');
      if (eq > 0) wanted[part.slice(0, eq)] = decodeURIComponent(part.slice(eq + 1).replace(/\+/g, ' '));
    }
    const c = drawTableFrame.controls;
    c.text.value = state.filter = wanted.filter || '';
    c.sources.value = state.src = wanted.src || '';
    c.from.value = state.from = wanted.from || '';
    c.to.value = state.to = wanted.to || '';
    const sort = (wanted.sort || '').toLowerCase();
    state.down = sort.startsWith('-');
    state.sort = COLUMNS.findIndex(col => col[0].toLowerCase() === sort.replace(/^-/, ''));
    refresh();
    if (wanted.open) openRecord(Number(wanted.open) - 1, true);
  }

  drawOverview();
  drawTableFrame();
  fromFragment();
  window.addEventListener('hashchange', fromFragment);
  // When the page was ready, and when its plot was, in ms from the start of
  // loading (kept on the body for whoever measures).
  document.body.dataset.readyMs = String(Math.round(performance.now()));
  if (rows.length) {
    if (!location.hash.includes('open=')) openRecord(0, false);
    setTimeout(() => {
      drawPlot();
      document.body.dataset.plottedMs = String(Math.round(performance.now()));
      if (/(^#|&)video=/.test(location.hash))
        for (const b of document.querySelectorAll('.sweep button')) b.click();
    }, 0);
  }
})();
