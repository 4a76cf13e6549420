#include <QApplication>
#include <iostream>
#include <sstream>

#include "stage/stage.h"

namespace {

using mevracard::Stage;

mevracard::Deck deckOf(std::istream& pairs) {
  mevracard::Deck deck;
  for (auto& [lower, upper] : deck) {
    char between = 0;
    if (!(pairs >> lower >> between >> upper)) throw std::runtime_error("a deal has 28 pairs");
  }
  return deck;
}

void shoot(Stage& stage, std::istream& words) {
  std::string name;
  std::string from;
  std::string to;
  int margin = 0;
  words >> name;
  if (words >> from >> to >> margin) {
    stage.shootBetween(QString::fromStdString(name), from, to, margin);
  } else {
    Stage::shoot(QString::fromStdString(name));
  }
}

/// One line; `table SETTINGS` takes the place of the game before.
void runLine(std::unique_ptr<Stage>& stage, const std::string& line) {
  std::istringstream words(line);
  std::string command;
  std::string name;
  if (!(words >> command) || command[0] == '#') return;
  const auto word = [&words, &name]() -> const std::string& {
    if (!(words >> name)) throw std::runtime_error("a word is missing");
    return name;
  };
  if (command == "table") {
    stage.reset();
    stage = std::make_unique<Stage>(word());
    return;
  }
  if (!stage) throw std::runtime_error("a table comes first");
  if (command == "deal") return stage->stack(deckOf(words));
  if (command == "start") return stage->start();
  if (command == "menu") return stage->menu(word());
  if (command == "click") return stage->click(word());
  if (command == "double") return stage->doubleClick(word());
  if (command == "key") return stage->key(word());
  if (command == "wait") return Stage::wait(std::stoi(word()));
  if (command == "box") return stage->shootNextBox(QString::fromStdString(word()));
  if (command == "shoot") return shoot(*stage, words);
  if (command == "show") {
    std::cout << stage->caption(word()) << std::endl;
    return;
  }
  throw std::runtime_error("no such command");
}

}  // namespace

/// Plays in the real window what standard input says, one command a line, and takes pictures of it.
/// A line that cannot be carried out ends the run with exit status 2.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  std::unique_ptr<Stage> stage;
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    try {
      runLine(stage, line);
    } catch (const std::exception& error) {
      std::cerr << "line " << number << ": " << error.what() << '\n';
      return 2;
    }
  }
  return 0;
}
