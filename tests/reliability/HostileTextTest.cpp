// Random texts through every text field of every screen that writes, of records that are changed and of new ones: what
// is stored is what the box held, less the blanks that the screen trims; no other row of the database changes; a text
// that cannot be stored is refused with a message and changes nothing.
//
//   TABULON_HOSTILE_TEXTS  how many texts over all screens together; 12000 on SQLite and 3000 on a server when not set
//   RC_PARAMS="seed=..."   repeats a run
#include <cmath>

#include "platform/controls/TextInput.h"
#include "reliability/HostileText.h"
#include "reliability/WritingScreens.h"

namespace {

// The actions that store free text.
std::vector<ScreenAction> TextActions() {
  std::vector<ScreenAction> actions;
  for (const ScreenAction& action : ScreenActions()) {
    const bool adds = action.action.name == "Add";
    if (!adds && action.action.name != "Update") continue;
    if (!action.screen->fields.empty() || (adds && !action.screen->keys.empty())) actions.push_back(action);
  }
  return actions;
}

class HostileTextTest : public ReliabilityDesk, public testing::WithParamInterface<ScreenAction> {
 protected:
  struct Sent {
    const WritingField* field;
    QString shown;  // what the box held when the screen was told to write
    int limit;      // of the box
  };

  // Texts of one action so far.
  int sent = 0, stored = 0;

  const WritingScreen& Subject() const { return *GetParam().screen; }
  bool Adds() const { return GetParam().action.name == "Add"; }

  static int Wanted() {
    bool given = false;
    const int total = qEnvironmentVariableIntValue("TABULON_HOSTILE_TEXTS", &given);
    const int all = given ? total : TestDatabase::TestEngine() == Engine::Sqlite ? 12000 : 3000;
    return static_cast<int>(std::ceil(double(all) / double(TextActions().size())));
  }

  // Boxes that a user can write into now.
  std::vector<const WritingField*> Fields() const {
    std::vector<const WritingField*> fields;
    if (Adds())
      for (const WritingField& key : Subject().keys) fields.push_back(&key);
    for (const WritingField& field : Subject().fields)
      if (IsEnabled(field.box)) fields.push_back(&field);
    return fields;
  }

  // A change goes on with the record in front, which is all it needs; a new record needs its lists and numbers.
  void Prepare() {
    if (Adds()) return GetParam().action.prepare(*this, ++round_);
    Subject().open(*this);
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

  // Some boxes write in capitals. A letter at a time: next to half of a pair Qt leaves a letter as it is.
  static QString Essence(const QString& text) {
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
  }

  // A box without filters takes what was entered, control characters left out, up to its limit.
  static void MustHoldWhatWasEntered(const Sent& sent, const HostileText& hostile, bool byKeys) {
    const QString& shown = sent.shown;
    RC_LOG() << "shown: " << Visible(shown).toStdString() << std::endl;
    const QString entered = Essence(hostile.text), held = Essence(shown);
    if (!byKeys) RC_ASSERT(entered.startsWith(held));
    // Typed, a letter of two units may find no room where a later one of one unit does.
    qsizetype found = 0;
    for (const QChar ch : entered)
      if (found < held.size() && held[found] == ch) ++found;
    RC_ASSERT(found == held.size());
    const bool fits = !entered.isEmpty() && (sent.limit > 1 || !entered[0].isSurrogate());
    RC_ASSERT(!shown.isEmpty() || !fits);
  }

  QString Expected(const Sent& sent) const {
    switch (Adds() ? sent.field->trimmedOnAdd : sent.field->trimmed) {
      case Trimmed::No:
        return sent.shown;
      case Trimmed::Ends:
        return sent.shown.trimmed();
      case Trimmed::EndsAndUpper:
        return TextInput::Upper(sent.shown.trimmed());
    }
    return {};
  }
  // Capitals may be longer than their letters. Most screens write them back into the box, which has its limit.
  bool Holds(const RowCells& row, const QString& column, const Sent& sent) const {
    const QString expected = Expected(sent), held = Stored(row[column]);
    return held == expected ||
           (sent.shown.size() < expected.size() && held == TextInput::Fitting(expected, sent.limit));
  }

  static QString Stored(QString cell) { return cell.replace("\r\n", "\n"); }

  void MustHold(const RowCells& row, const QString& column, const Sent& sent) const {
    if (Holds(row, column, sent)) return;
    RC_FAIL((column + " holds \"" + Visible(Stored(row[column])) + "\" and not \"" + Visible(Expected(sent)) + '"')
                .toStdString());
  }

  // One row gave way to one other, which holds the texts and is the same otherwise.
  void MustBeTheChange(const QList<RowCells>& gone, const QList<RowCells>& come, const std::vector<Sent>& texts) {
    RC_ASSERT(gone.size() == 1);
    RC_ASSERT(come.size() == 1);
    for (const Sent& text : texts) MustHold(come.front(), text.field->column, text);
    RowCells rest = gone.front();
    for (const Sent& text : texts) rest.remove(text.field->column);
    for (const QString& column : Subject().ownColumns) rest.remove(column);
    for (auto cell = rest.begin(); cell != rest.end(); ++cell)
      if (come.front()[cell.key()] != cell.value()) RC_FAIL((cell.key() + " changed").toStdString());
  }

  // One row came; what the languages have of a description is the same.
  void MustBeTheNewRecord(const QList<RowCells>& gone, const QList<RowCells>& come, const std::vector<Sent>& texts) {
    RC_ASSERT(gone.isEmpty());
    RC_ASSERT(come.size() == 1);
    for (const Sent& text : texts) {
      MustHold(come.front(), text.field->column, text);
      // Three screens leave the languages out or write them elsewhere.
      for (const char* language : {"_ENG", "_FRE", "_GER"}) {
        const QString copy = text.field->column + QString(language);
        if (!come.front().value(copy).isEmpty()) MustHold(come.front(), copy, text);
      }
    }
  }

  bool IsStored(const TableContents& contents, const std::vector<Sent>& texts) const {
    const QList<RowCells> rows = contents.Rows();
    return std::any_of(rows.begin(), rows.end(), [&](const RowCells& row) {
      return std::all_of(texts.begin(), texts.end(),
                         [&](const Sent& text) { return Holds(row, text.field->column, text); });
    });
  }

  int Limit(const char* box) const {
    if (const auto* const line = Window()->findChild<TextBox*>(box)) return line->maxLength();
    return std::numeric_limits<int>::max();
  }

  void Round(const QList<HostileText>& hostile, bool byKeys) {
    Prepare();
    const TableContents before = ContentsOf(Database().OtherClient(), Subject().table);
    const auto fields = Fields();
    std::vector<Sent> texts;
    bool halves = false;
    for (size_t i = 0; i < fields.size(); ++i) {
      const WritingField& field = *fields[i];
      Enter(field.box, hostile[int(i)], byKeys);
      if (field.twin) Enter(field.twin, hostile[int(i)], byKeys);
      texts.push_back({&field, Text(field.box), Limit(field.box)});
      MustHoldWhatWasEntered(texts.back(), hostile[int(i)], byKeys);
      halves = halves || HostileText{texts.back().shown}.HasLoneSurrogate();
    }
    Said().Forget();
    GetParam().action.press(*this);
    sent += int(texts.size());
    const TableContents after = ContentsOf(Database().OtherClient(), Subject().table);
    const QList<RowCells> gone = before.Without(after), come = after.Without(before);
    if (gone.isEmpty() && come.isEmpty()) {
      // Either a message says why, or the record held these texts already.
      const bool explained = Adds() ? Said().Refusal() : !Said().All().isEmpty() || IsStored(after, texts);
      RC_ASSERT(explained);
      return;
    }
    RC_ASSERT(!halves);
    if (Adds())
      MustBeTheNewRecord(gone, come, texts);
    else
      MustBeTheChange(gone, come, texts);
    stored += int(texts.size());
  }

  // The case is run once more for its report, on the record as it is by then.
  std::string firstFailure_;

 private:
  int round_ = 0;
};

TEST_P(HostileTextTest, ComesBackAsTyped) {
  Prepare();
  if (HasFatalFailure() || HasNonfatalFailure()) return;
  const DatabaseContents before = ContentsOf(Database().OtherClient());
  const size_t fields = Fields().size();
  rc::detail::TestParams params = rc::detail::configuration().testParams;
  params.maxSuccess = std::max(1, Wanted() / int(fields));
  params.maxSize = 30;
  // A shorter text would meet another record than the one that failed, and tell another story.
  params.disableShrinking = true;
  rc::detail::TestMetadata about;
  about.id = about.description = GetParam().Name();
  const auto result = rc::detail::checkTestable(
      [&] {
        const auto texts = *rc::gen::container<std::vector<HostileText>>(fields, HostileTexts());
        try {
          Round({texts.begin(), texts.end()}, *rc::gen::weightedElement<bool>({{1, true}, {3, false}}));
          RC_ASSERT(!HasNonfatalFailure());
        } catch (const rc::detail::CaseResult& failed) {
          if (firstFailure_.empty())
            firstFailure_ = failed.description + "\nsaid: " + Said().Transcript().toStdString();
          throw;
        }
      },
      about, params);
  std::ostringstream report;
  rc::detail::printResultMessage(result, report);
  EXPECT_TRUE(result.template is<rc::detail::SuccessResult>()) << report.str() << "\nseed=" << params.seed << '\n'
                                                               << firstFailure_;
  QStringList others = Differences(before, ContentsOf(Database().OtherClient()), Subject().table);
  for (const QString& counter : Subject().counters) others.removeAll(counter);
  EXPECT_EQ(others.join(' ').toStdString(), Subject().alsoWrites.toStdString());
  // Otherwise the case would have seen refusals only. Of the short codes of new records many are taken already, and of
  // a few records chance may refuse all.
  const bool enough = sent >= 20 * int(fields);
  if (enough) {
    EXPECT_GT(stored, Adds() || sent < 300 ? 0 : sent / 4) << stored << " of " << sent;
  }
  RecordProperty("texts", sent);
  RecordProperty("stored", stored);
}

INSTANTIATE_TEST_SUITE_P(Screens, HostileTextTest, testing::ValuesIn(TextActions()),
                         [](const auto& action) { return action.param.Name(); });

}  // namespace
