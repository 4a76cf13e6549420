#include <utility>

#include "ui/main_window.h"
#include "ui/spoken_lists.h"
#include "ui/spoken_prompts.h"

namespace mevracard {

namespace {

/// The computer's answer would interrupt what is said of the player's move: a screen reader drops a
/// sentence for the next one, and nobody knows how long it takes. So the two are told in one.
bool replyIsDue(const MainWindow& w) {
  const TutorialState& tutorial = w.state.tutorial;
  return w.timer.enabled && !tutorial.nextIsComputers && !tutorial.computerWaitsForNext;
}

std::string figuresText(const Label& caption, const Label& count, const Label& percent) {
  return caption.caption + " " + count.caption + ", " + percent.caption;
}

}  // namespace

void MainWindow::speak() {
  const bool aside = about.form.visible || statistics.form.visible;
  const bool returns = std::exchange(heard.aside, aside) && !aside;
  speakOfTable();
  heard.news.note(game, state, answerDueIn == (state.passAwaitsOk ? &about.form : &form));
  if (returns && !form.speech.unsaid) heard.news.oweAnswer();
  if (!replyIsDue(*this)) speakOfGame();
  speakOfAbout();
  speakOfStatistics();
  answerDueIn = nullptr;
}

void MainWindow::speakBeforeBox() {
  speakOfTable();
  heard.news.note(game, state, answerDueIn == &form);
  heard.news.oweAnswer();
}

void MainWindow::speakOfTable() {
  form.speech.lists = spokenLists(*this);
  form.speech.line = game.chain.openings == 0 ? form.caption : standing(game, state);
}

void MainWindow::speakOfGame() {
  const std::string words = heard.news.tell(game, state);
  if (!words.empty()) (state.passAwaitsOk ? about.form : form).speech.tell(words);
}

void MainWindow::speakOfAbout() {
  SpokenList list{about.form.caption, {{&about.heading, about.heading.caption}}};
  if (about.tip.visible) list.items.push_back({&about.tip, about.tip.caption});
  const std::string words = state.passAwaitsOk ? "" : list.items.back().words + " ";
  about.form.speech.lists = {list};
  speakBeside(about.form, heard.about, words, closingWords());
}

void MainWindow::speakOfStatistics() {
  StatisticsWindow& w = statistics;
  const std::string won = figuresText(w.wonCaption, w.won, w.wonPercent);
  const std::string lost = figuresText(w.lostCaption, w.lost, w.lostPercent);
  w.form.speech.lists = {{"Statistics", {{&w.won, won}, {&w.lost, lost}}}};
  const std::string words = won + ". " + lost + ". ";
  speakBeside(w.form, heard.statistics, words, words + closingWords());
}

void MainWindow::speakBeside(Form& window, std::string& known, const std::string& words,
                             const std::string& again) const {
  const std::string now = window.visible ? words : "";
  const bool isNew = std::exchange(known, now) != now;
  if (now.empty()) return;
  if (isNew || answerDueIn == &window) window.speech.tell(isNew ? now + closingWords() : again);
}

}  // namespace mevracard
