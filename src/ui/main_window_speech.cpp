#include <algorithm>

#include "game/rules.h"
#include "ui/colors.h"
#include "ui/main_window.h"

namespace mevracard {

namespace {

constexpr std::array endNames{std::string_view("Right/Top"), std::string_view("Left/Bottom")};
constexpr std::array ends{End::RightTop, End::LeftBottom};

std::string_view nameOf(End end) { return endNames[static_cast<std::size_t>(end)]; }

/// A card has one name, however it lies.
std::string nameOf(const Card& card) {
  const auto [lower, higher] = std::minmax(card.upper, card.lower);
  return std::to_string(lower) + "-" + std::to_string(higher);
}

std::string sentence(std::string_view caption) {
  const bool complete = caption.ends_with('!') || caption.ends_with('.');
  return std::string(caption) + (complete ? " " : ". ");
}

/// A card in a hand.
std::string wordsOf(const GameState& s, int slot) {
  std::string words = nameOf(s.card(slot));
  if (s.openings == 0 || s.gameOver) return words;
  const bool rightTop = fitsAt(s, slot, End::RightTop);
  const bool leftBottom = fitsAt(s, slot, End::LeftBottom);
  if (!rightTop && !leftBottom) return words + ", does not fit";
  if (rightTop && leftBottom) return words + ", fits both ends";
  return words + ", fits the " + std::string(nameOf(rightTop ? End::RightTop : End::LeftBottom)) +
         " end";
}

std::string openNumbers(const GameState& s) {
  return "Open numbers: " + std::to_string(s.openNumber[End::RightTop]) + " at Right/Top, " +
         std::to_string(s.openNumber[End::LeftBottom]) + " at Left/Bottom. ";
}

bool isMarked(const CardControls& card) { return card.upper.backColor == selectionColour; }

SpokenList handList(MainWindow& w, Side side, std::string_view name) {
  SpokenList list{std::string(name), {}};
  for (const int slot : handOf(side)) {
    CardControls& card = w.card(slot);
    if (!w.state.card(slot).held || !card.frame.visible) continue;
    SpokenItem item{&card.frame, card.isCovered() ? "face down" : wordsOf(w.state, slot)};
    item.answersPress = side == Side::Player;
    item.selected = item.answersPress && slot == w.state.selectedCard && isMarked(card);
    list.items.push_back(std::move(item));
  }
  return list;
}

/// The cards at the ends come first.
SpokenList tableList(MainWindow& w) {
  const GameState& s = w.state;
  SpokenList list{"Table", {}};
  const auto add = [&](int slot, const std::string& place) {
    Frame& frame = w.card(slot).frame;
    if (frame.visible) list.items.push_back({&frame, nameOf(s.card(slot)) + place});
  };
  if (s.openings == 0) return list;
  const auto [first, second] = s.endCard.values;
  for (const End end : ends) {
    if (!s.endCard[end] || (end == End::LeftBottom && first == second)) continue;
    add(*s.endCard[end], first == second
                             ? ", at both ends, open number " + std::to_string(s.openNumber[end])
                             : ", at the " + std::string(nameOf(end)) + " end, open number " +
                                   std::to_string(s.openNumber[end]));
  }
  for (const int slot : allSlots) {
    if (!s.card(slot).held && slot != first && slot != second) add(slot, "");
  }
  return list;
}

/// Counters and results under the names that stand beside them.
SpokenList scoreList(MainWindow& w) {
  SpokenList list{"Score", {}};
  const auto add = [&list](Label& label, const std::string& name) {
    if (label.visible) list.items.push_back({&label, name + label.caption});
  };
  add(w.status, "");
  constexpr std::array owners{std::string_view("Computer's Cards, "),
                              std::string_view("Your Cards, ")};
  for (std::size_t i = 0; i < w.table.counters.size(); ++i) {
    const std::string& heading = w.table.counterHeadings[i].caption;
    add(w.table.counters[i], std::string(owners[i % 2]) + heading + ": ");
  }
  add(w.result.deadlock, "");
  add(w.result.yourSum, w.result.youHave.caption + " ");
  add(w.result.computersSum, w.result.computerHas.caption + " ");
  add(w.result.verdict, "");
  return list;
}

/// The cards that a side has laid since, in the order of its hand.
std::string laidSince(const GameState& told, const GameState& s, Side side) {
  std::string names;
  for (const int slot : handOf(side)) {
    if (!told.card(slot).held || s.card(slot).held) continue;
    names += (names.empty() ? "" : ", ") + nameOf(s.card(slot));
  }
  if (names.empty()) return names;
  return (side == Side::Player ? "You lay " : "Computer lays ") + names + ". ";
}

/// A card that the player wanted to lay and could not.
std::string refusedSince(const GameState& told, const GameState& s) {
  const bool dropped = told.selectedCard != s.selectedCard && s.selectedCard == noSelection;
  const int slot = s.playCard;
  if ((!dropped && slot == told.playCard) || told.openings == 0 || s.tutorial.running) return "";
  if (slot >= handSize || !s.card(slot).held || fits(s, slot)) return "";
  return nameOf(s.card(slot)) + " does not fit. ";
}

std::string selectedSince(const GameState& told, MainWindow& w) {
  const int slot = w.state.selectedCard;
  if (slot == told.selectedCard || slot >= handSize || !isMarked(w.card(slot))) return "";
  return w.state.card(slot).held ? wordsOf(w.state, slot) + ". " : "No card is selected. ";
}

std::string choiceWords(const Choice& choice) {
  return choice.leftBottom.caption + " or " + choice.rightTop.caption +
         "? Type the number, or Escape. ";
}

std::string resultWords(const Result& result) {
  std::string words;
  if (result.deadlock.visible) words += sentence(result.deadlock.caption);
  words += result.youHave.caption + " " + sentence(result.yourSum.caption);
  words += result.computerHas.caption + " " + sentence(result.computersSum.caption);
  return words + sentence(result.verdict.caption);
}

std::string newsSince(const GameState& told, MainWindow& w) {
  const GameState& s = w.state;
  const std::string laid = laidSince(told, s, Side::Player) + laidSince(told, s, Side::Computer);
  std::string news =
      laid + (laid.empty() ? "" : openNumbers(s)) + refusedSince(told, s) + selectedSince(told, w);
  if (s.gameOver) return told.gameOver ? news : news + resultWords(w.result);
  const bool another = s.announcement != told.announcement || !laid.empty();
  if (another || (told.choiceOpen && !s.choiceOpen)) news += sentence(w.status.caption);
  if (s.choiceOpen && !told.choiceOpen) news += choiceWords(w.choice);
  return news;
}

SpokenList figuresOf(StatisticsWindow& w) {
  return {"Statistics",
          {{&w.won, w.wonCaption.caption + " " + w.won.caption + ", " + w.wonPercent.caption},
           {&w.lost, w.lostCaption.caption + " " + w.lost.caption + ", " + w.lostPercent.caption}}};
}

std::string aboutNews(const MainWindow& w) {
  if (!w.about.form.visible) return "";
  if (!w.about.tip.visible) return w.about.heading.caption;
  return (w.state.passAwaitsOk ? w.form.speech.news : "") + w.about.tip.caption;
}

}  // namespace

void MainWindow::speak() {
  Speech& speech = form.speech;
  speech.lists = {handList(*this, Side::Player, "Your cards"),
                  handList(*this, Side::Computer, "Computer's cards"), tableList(*this),
                  scoreList(*this)};
  if (std::string news = newsSince(told, *this); !news.empty()) speech.news = std::move(news);
  told = state;

  about.form.speech.lists = {{about.heading.caption, {{&about.heading, about.heading.caption}}}};
  about.form.speech.news = aboutNews(*this);
  const SpokenList figures = figuresOf(statistics);
  statistics.form.speech = {{figures}, figures.items[0].words + ". " + figures.items[1].words};
}

}  // namespace mevracard
