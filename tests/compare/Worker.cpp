#include "Worker.h"

#include <utf8.h>

#include <algorithm>
#include <cstring>
#include <ctime>
#include <fstream>
#include <iterator>

#include "Damage.h"
#include "LexerTexts.h"
#include "fuzz/Input.h"

namespace compare {

namespace {

constexpr std::uint64_t enoughDifferences = 5;
constexpr std::size_t remembered = 64;
constexpr char32_t endOfCharacters = 0x110000;

template <std::size_t size>
void store(std::string_view text, char (&place)[size]) {
  const std::size_t count = std::min(text.size(), size - 1);
  std::memcpy(place, text.data(), count);
  place[count] = '\0';
}

// Large texts are few, since prediction takes long for them.
std::size_t drawRoom(Random& random) { return 2 + random.below(random.oneIn(16) ? 50 : 10); }

static_assert(CLOCKS_PER_SEC == 1'000'000, "the processor's time is in microseconds");

const char* nameOf(Entry entry) { return entry == Entry::Query ? "query" : "filter"; }

}  // namespace

Worker::Worker(const Options& itsOptions, std::size_t itsShare, std::size_t itsShares,
               Report& itsReport)
    : options(itsOptions),
      share(itsShare),
      shares(itsShares),
      report(itsReport),
      random(itsOptions.seed * 1000 + itsShare),
      drawing(random),
      chainNumber(itsShare),
      nextCharacter(static_cast<char32_t>(itsShare)) {
  for (const Sequences::Alphabet& alphabet : Sequences::alphabets()) {
    sequences.emplace_back(alphabet, share, shares);
  }
}

bool Worker::isDone() const {
  return done >= options.texts / shares || report.differences >= enoughDifferences;
}

void Worker::run() {
  if (share == 0) {
    readFiles();
  }
  while (!isDone()) {
    compareNext();
  }
  std::copy(coverage.counts().begin(), coverage.counts().end(), report.taken);
  report.finished = true;
}

Verdict Worker::check(Source source, const std::string& text, Entry entry) {
  store(text, report.current);
  const std::clock_t begin = std::clock();
  Verdict verdict = compareText(text, entry);
  const auto took = static_cast<std::uint64_t>(std::clock() - begin);
  if (took > report.slowestMicroseconds) {
    report.slowestMicroseconds = took;
    store(text, report.slowest);
  }
  count(source, verdict);
  report.counts[static_cast<std::size_t>(source)].microseconds += took;
  if (!verdict.difference.empty()) {
    note(nameOf(entry), text, verdict.difference);
  }
  return verdict;
}

void Worker::count(Source source, const Verdict& verdict) {
  ++done;
  Counts& counts = report.counts[static_cast<std::size_t>(source)];
  ++counts.texts;
  ++(verdict.accepted ? counts.accepted : counts.refused);
  counts.equalMessages += verdict.equalMessage ? 1 : 0;
  counts.refusedByBound += verdict.refusedByBound ? 1 : 0;
}

void Worker::note(const std::string& what, std::string_view text, const std::string& sides) {
  ++report.differences;
  std::string shown = report.shown;
  shown += what + " ----\n";
  shown.append(text).append("\n----\n").append(sides).append("\n");
  store(shown, report.shown);
}

void Worker::remember(const std::string& text, Entry entry, Verdict& verdict) {
  if (!verdict.accepted) {
    return;
  }
  accepted.push_back({text, entry, std::move(verdict.parse.tokens)});
  if (accepted.size() > remembered) {
    accepted.pop_front();
  }
}

void Worker::readFiles() {
  for (const std::filesystem::path& place : options.files) {
    if (std::filesystem::is_regular_file(place)) {
      readFile(place);
      continue;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(place)) {
      if (entry.is_regular_file()) {
        readFile(entry.path());
      }
    }
  }
}

void Worker::readFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  if (!utf8::is_valid(text.begin(), text.end())) {
    if (!isRefusedByAll(wideFrom(text))) {
      note("not well-formed", text, "  is not refused by all functions\n");
    }
    return;
  }
  for (const Entry entry : {Entry::Query, Entry::Filter}) {
    Verdict verdict = check(Source::Files, text, entry);
    remember(text, entry, verdict);
  }
}

void Worker::compareNext() {
  switch (turn++ % 16) {
    case 0:
    case 1:
    case 2:
    case 3:
      compareDrawn();
      break;
    case 4:
    case 5:
    case 6:
      compareConstructs();
      break;
    case 7:
    case 8:
      compareSequence();
      break;
    case 9:
    case 10:
    case 11:
    case 12:
      compareDamaged();
      break;
    case 13:
      compareTail();
      break;
    case 14:
      compareCharacters();
      break;
    default:
      compareIllFormed();
  }
}

void Worker::compareDrawn() {
  constexpr std::uint64_t allCovered = 20'000;
  const Entry entry = random.oneIn(2) ? Entry::Query : Entry::Filter;
  const std::string text = joined(drawing.draw(entry, drawRoom(random)));
  Verdict verdict = check(Source::Drawn, text, entry);
  // Finding out what a text covers takes as long as comparing it, so later it is done less often.
  if (verdict.accepted && (done < allCovered || random.oneIn(8))) {
    coverage.add(text, entry);
  }
  remember(text, entry, verdict);
}

void Worker::compareConstructs() {
  constexpr Templates::Kind kinds[] = {Templates::Kind::Expression, Templates::Kind::Query};
  const std::size_t complete = options.everything ? 3 : 2;
  while (chainDepth <= complete && chainNumber >= templates.count(kinds[chainKind], chainDepth)) {
    chainNumber = share;
    chainKind = (chainKind + 1) % 2;
    chainDepth += chainKind == 0 ? 1 : 0;
  }
  if (chainDepth <= complete) {
    compareChain(kinds[chainKind], chainDepth, chainNumber);
    chainNumber += shares;
    return;
  }
  const Templates::Kind kind = random.pick(kinds);
  if (random.oneIn(4)) {
    const Entry entry = kind == Templates::Kind::Query ? Entry::Query : Entry::Filter;
    const std::string text = templates.tree(kind, 2, random);
    Verdict verdict = check(Source::Constructs, text, entry);
    remember(text, entry, verdict);
  } else {
    const std::size_t depth = 3 + random.below(2);
    compareChain(kind, depth, random.next() % templates.count(kind, depth));
  }
}

// An expression is also compared inside a query, where other text may follow it.
void Worker::compareChain(Templates::Kind kind, std::size_t depth, std::uint64_t number) {
  const bool isQuery = kind == Templates::Kind::Query;
  const Templates::Text chain = templates.chain(kind, depth, number);
  const std::string query = isQuery ? chain.text : "RETURN " + chain.text;
  Verdict verdict = check(Source::Constructs, query, Entry::Query);
  if (verdict.accepted) {
    for (const std::size_t pair : chain.pairs) {
      report.met[pair] = true;
    }
  }
  if (random.oneIn(8)) {
    remember(query, Entry::Query, verdict);
  }
  if (!isQuery) {
    check(Source::Constructs, chain.text, Entry::Filter);
  }
}

void Worker::compareSequence() {
  std::string text;
  std::size_t tried = 0;
  while (tried < sequences.size() && !sequences[nextAlphabet].next(text)) {
    report.allSequences[nextAlphabet] = true;
    nextAlphabet = (nextAlphabet + 1) % sequences.size();
    ++tried;
  }
  if (tried == sequences.size()) {
    return;
  }
  Sequences& current = sequences[nextAlphabet];
  const bool isExpression = Sequences::alphabets()[nextAlphabet].ofExpressions;
  const Verdict verdict =
      check(Source::Sequences, isExpression ? "RETURN " + text : text, Entry::Query);
  if (isExpression) {
    check(Source::Sequences, text, Entry::Filter);
  }
  if (verdict.accepted || verdict.mayContinue) {
    current.keep();
  }
  report.longestSequences[nextAlphabet] = current.length();
  nextAlphabet = (nextAlphabet + 1) % sequences.size();
}

void Worker::compareDamaged() {
  if (accepted.empty()) {
    return;
  }
  const Accepted& whole = random.pick(accepted);
  std::string text = damaged(whole.text, whole.tokens, drawing, random);
  check(Source::Damaged, text, whole.entry);
}

void Worker::compareTail() {
  if (accepted.empty()) {
    return;
  }
  const Accepted& whole = random.pick(accepted);
  check(Source::Tails, withTail(whole.text, drawing, random),
        random.oneIn(4) ? Entry::Query : whole.entry);
}

void Worker::compareCharacters() {
  std::string text;
  if (options.everything && nextCharacter < endOfCharacters && random.oneIn(2)) {
    if (nextCharacter < 0xD800 || nextCharacter > 0xDFFF) {
      text = random.oneIn(2) ? "a" : "";
      utf8::append(nextCharacter, std::back_inserter(text));
    }
    nextCharacter += static_cast<char32_t>(shares);
  } else {
    text = drawLexerText(drawing, random);
  }
  check(Source::Characters, text, Entry::Filter);
  if (random.oneIn(4)) {
    check(Source::Characters, "RETURN " + text, Entry::Query);
  }
}

void Worker::compareIllFormed() {
  ++done;
  Counts& counts = report.counts[static_cast<std::size_t>(Source::IllFormed)];
  ++counts.texts;
  ++counts.refused;
  if (!isRefusedByAll(drawIllFormed(drawing, random))) {
    note("not well-formed", "", "  is not refused by all functions\n");
  }
}

}  // namespace compare
