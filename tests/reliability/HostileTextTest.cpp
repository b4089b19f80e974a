// Random texts through every text field of every screen that writes: what is stored is what the box held, less the
// blanks that the screen trims; no other row of the database changes; a text that cannot be stored is refused with a
// message and changes nothing.
//
//   TABULON_HOSTILE_TEXTS  how many texts over all screens together; 12000 on SQLite and 3000 on a server when not set
//   RC_PARAMS="seed=..."   repeats a run
#include <cmath>

#include "reliability/HostileText.h"
#include "reliability/WritingScreens.h"

namespace {

class HostileTextTest : public ReliabilityDesk, public testing::WithParamInterface<WritingScreen> {
 protected:
  struct Sent {
    const WritingField* field;
    QString shown;  // what the box held when the screen was told to write
  };

  // Texts of one screen so far.
  int sent = 0, stored = 0;

  static int Wanted() {
    bool given = false;
    const int total = qEnvironmentVariableIntValue("TABULON_HOSTILE_TEXTS", &given);
    const int all = given ? total : TestDatabase::TestEngine() == Engine::Sqlite ? 12000 : 3000;
    return static_cast<int>(std::ceil(double(all) / double(ScreensWithText().size())));
  }

  // By keys where a person could type it, else pasted.
  void Enter(const char* box, const HostileText& hostile, bool byKeys) {
    // A one-line box takes no key that shows nothing.
    const bool typable =
        !hostile.HasLoneSurrogate() && std::all_of(hostile.text.begin(), hostile.text.end(),
                                                   [](QChar ch) { return ch.isPrint() || ch.isSurrogate(); });
    Type(box, {});
    if (byKeys && typable && hostile.text.size() < 40)
      Append(box, hostile.text);
    else
      Paste(box, hostile.text);
  }

  // A box without filters takes what was entered, control characters left out, up to its limit.
  static void MustHoldWhatWasEntered(const QString& shown, const HostileText& hostile, bool byKeys) {
    // Some boxes write in capitals. A letter at a time: next to half of a pair Qt leaves a letter as it is.
    const auto essence = [](const QString& text) {
      QString kept;
      for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar ch = text[at];
        if (ch <= u' ' || (ch >= u'\x7f' && ch <= u'\xa0') || ch == QChar::LineSeparator ||
            ch == QChar::ParagraphSeparator)
          continue;
        const bool pair = ch.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        kept += text.mid(at, pair ? 2 : 1).toUpper();
        if (pair) ++at;
      }
      return kept;
    };
    RC_LOG() << "shown: " << Visible(shown).toStdString() << std::endl;
    const QString entered = essence(hostile.text), held = essence(shown);
    if (!byKeys) RC_ASSERT(entered.startsWith(held));
    // Typed, a letter of two units may find no room where a later one of one unit does.
    qsizetype found = 0;
    for (const QChar ch : entered)
      if (found < held.size() && held[found] == ch) ++found;
    RC_ASSERT(found == held.size());
    RC_ASSERT(!shown.isEmpty() || essence(hostile.text).isEmpty());
  }

  static QString Expected(const Sent& sent) {
    switch (sent.field->trimmed) {
      case Trimmed::No:
        return sent.shown;
      case Trimmed::Ends:
        return sent.shown.trimmed();
      case Trimmed::EndsAndUpper:
        return sent.shown.trimmed().toUpper();
    }
    return {};
  }

  // One row gave way to one other, which holds the texts and is the same otherwise.
  void MustBeTheChange(const QList<RowCells>& gone, const QList<RowCells>& come, const std::vector<Sent>& texts) {
    RC_ASSERT(gone.size() == 1);
    RC_ASSERT(come.size() == 1);
    RowCells expected = gone.front();
    for (const Sent& text : texts) expected[text.field->column] = Expected(text);
    for (const QString& column : GetParam().ownColumns) expected[column] = come.front()[column];
    for (auto cell = expected.begin(); cell != expected.end(); ++cell) {
      QString stored = come.front()[cell.key()];
      stored.replace("\r\n", "\n");
      if (stored == cell.value()) continue;
      RC_FAIL(
          (cell.key() + " holds \"" + Visible(stored) + "\" and not \"" + Visible(cell.value()) + '"').toStdString());
    }
  }

  static bool IsStored(const TableContents& contents, const std::vector<Sent>& texts) {
    return std::any_of(contents.rows.begin(), contents.rows.end(), [&](const RowCells& row) {
      return std::all_of(texts.begin(), texts.end(),
                         [&](const Sent& text) { return row[text.field->column] == Expected(text); });
    });
  }

  void Round(const QList<HostileText>& hostile, bool byKeys) {
    const WritingScreen& screen = GetParam();
    screen.open(*this);
    const TableContents before = ContentsOf(Database().OtherClient(), screen.table);
    std::vector<Sent> texts;
    bool halves = false;
    for (size_t i = 0; i < screen.fields.size(); ++i) {
      Enter(screen.fields[i].box, hostile[int(i)], byKeys);
      if (screen.fields[i].twin) Enter(screen.fields[i].twin, hostile[int(i)], byKeys);
      texts.push_back({&screen.fields[i], Text(screen.fields[i].box)});
      MustHoldWhatWasEntered(texts.back().shown, hostile[int(i)], byKeys);
      halves = halves || HostileText{texts.back().shown}.HasLoneSurrogate();
    }
    Said().Forget();
    screen.write(*this);
    sent += int(texts.size());
    const TableContents after = ContentsOf(Database().OtherClient(), screen.table);
    const QList<RowCells> gone = before.Without(after), come = after.Without(before);
    if (gone.isEmpty() && come.isEmpty()) {
      // Either a message says why, or the record held these texts already.
      RC_ASSERT(!Said().All().isEmpty() || IsStored(after, texts));
    } else {
      RC_ASSERT(!halves);
      MustBeTheChange(gone, come, texts);
      stored += int(texts.size());
    }
  }
};

TEST_P(HostileTextTest, ComesBackAsTyped) {
  const WritingScreen& screen = GetParam();
  screen.open(*this);
  if (HasFatalFailure() || HasNonfatalFailure()) return;
  const DatabaseContents before = ContentsOf(Database().OtherClient());
  const int fields = int(screen.fields.size());
  rc::detail::TestParams params = rc::detail::configuration().testParams;
  params.maxSuccess = std::max(1, Wanted() / fields);
  params.maxSize = 30;
  rc::detail::TestMetadata about;
  about.id = about.description = screen.name;
  const auto result = rc::detail::checkTestable(
      [&] {
        const auto texts = *rc::gen::container<std::vector<HostileText>>(screen.fields.size(), HostileTexts());
        Round({texts.begin(), texts.end()}, *rc::gen::weightedElement<bool>({{1, true}, {3, false}}));
        RC_ASSERT(!HasNonfatalFailure());
      },
      about, params);
  std::ostringstream report;
  rc::detail::printResultMessage(result, report);
  EXPECT_TRUE(result.template is<rc::detail::SuccessResult>())
      << report.str() << "\nseed=" << params.seed << "\nsaid: " << Said().Transcript().toStdString();
  EXPECT_EQ(Differences(before, ContentsOf(Database().OtherClient()), screen.table).join(' ').toStdString(),
            screen.alsoWrites.toStdString());
  // Otherwise the case would have seen refusals only.
  EXPECT_GE(stored, sent / 2) << stored << " of " << sent;
  RecordProperty("texts", sent);
  RecordProperty("stored", stored);
}

INSTANTIATE_TEST_SUITE_P(Screens, HostileTextTest, testing::ValuesIn(ScreensWithText()),
                         [](const auto& screen) { return std::string(screen.param.name); });

}  // namespace
