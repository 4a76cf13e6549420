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

/// The cards at the ends come first, then those between them from Right/Top to Left/Bottom.
SpokenList tableList(MainWindow& w) {
  const GameState& s = w.state;
  SpokenList list{"Table", {}};
  const auto add = [&](int slot, const std::string& place) {
    Frame& frame = w.card(slot).frame;
    if (frame.visible) list.items.push_back({&frame, nameOf(s.card(slot)) + place});
  };
  if (s.openings == 0) return list;
  const auto first = s.endCard[End::RightTop];
  const auto second = s.endCard[End::LeftBottom];
  for (const End end : ends) {
    if (!s.endCard[end] || (end == End::LeftBottom && first == second)) continue;
    add(*s.endCard[end], first == second
                             ? ", at both ends, open number " + std::to_string(s.openNumber[end])
                             : ", at the " + std::string(nameOf(end)) + " end, open number " +
                                   std::to_string(s.openNumber[end]));
  }
  const auto laid = s.laidCards();
  const auto tellInside = [&](const LaidCard& card, End end) {
    if (card.end == end && card.slot != first && card.slot != second) add(card.slot, "");
  };
  std::for_each(laid.rbegin(), laid.rend(),
                [&](const LaidCard& card) { tellInside(card, End::RightTop); });
  for (const LaidCard& card : laid) tellInside(card, End::LeftBottom);
  return list;
}

/// Counters and results under the names that stand beside them.
SpokenList scoreList(MainWindow& w) {
  SpokenList list{"Score", {}};
  const auto add = [&list](Label& label, const std::string& name) {
    if (label.visible) list.items.push_back({&label, name + label.caption});
  };
  add(w.status, "");
  for (PerSide<Counter>* counters : {&w.table.cardsLeft, &w.table.passes}) {
    for (const Side side : {Side::Computer, Side::Player}) {
      auto& [heading, count] = (*counters)[side];
      const std::string owner = side == Side::Player ? "Your Cards, " : "Computer's Cards, ";
      add(count, owner + heading.caption + ": ");
    }
  }
  add(w.result.deadlock, "");
  add(w.result.yourSum, w.result.youHave.caption + " ");
  add(w.result.computersSum, w.result.computerHas.caption + " ");
  add(w.result.verdict, "");
  return list;
}

/// "You lay 1-3 at Right/Top. Computer lays 3-5, 5-6 at Right/Top, 1-1 at Left/Bottom. ", in order.
std::string laidSince(const GameState& told, const GameState& s) {
  const auto laid = s.laidCards();
  const auto first = static_cast<std::size_t>(told.laidCount <= s.laidCount ? told.laidCount : 0);
  // The opening's card lies at no end.
  const auto place = [&](std::size_t i) {
    return i == 0 ? "" : " at " + std::string(nameOf(laid[i].end));
  };
  std::string words;
  for (std::size_t i = first; i < laid.size(); ++i) {
    const int slot = laid[i].slot;
    const bool sideGoesOn = i > first && ownerOf(laid[i - 1].slot) == ownerOf(slot);
    const bool endGoesOn = sideGoesOn && place(i - 1) == place(i);
    if (i > first && !endGoesOn) words += place(i - 1);
    if (i > first) words += sideGoesOn ? ", " : ". ";
    if (!sideGoesOn) words += ownerOf(slot) == Side::Player ? "You lay " : "Computer lays ";
    words += nameOf(s.card(slot));
  }
  return words.empty() ? words : words + place(laid.size() - 1) + ". ";
}

/// A card that the player wanted to lay and could not.
std::string refusedSince(const GameState& told, const GameState& s) {
  return s.refusals == told.refusals ? "" : nameOf(s.card(s.playCard)) + " does not fit. ";
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
  const std::string laid = laidSince(told, s);
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
  if (const std::string news = newsSince(told, *this); !news.empty()) speech.tell(news);
  told = state;

  Speech& aboutSpeech = about.form.speech;
  aboutSpeech.lists = {{about.heading.caption, {{&about.heading, about.heading.caption}}}};
  if (const std::string news = aboutNews(*this); news != aboutSpeech.news) aboutSpeech.tell(news);
  Speech& statisticsSpeech = statistics.form.speech;
  statisticsSpeech.lists = {figuresOf(statistics)};
  const auto& figures = statisticsSpeech.lists[0].items;
  const std::string news = figures[0].words + ". " + figures[1].words;
  if (news != statisticsSpeech.news) statisticsSpeech.tell(news);
}

}  // namespace mevracard
