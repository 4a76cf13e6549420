#pragma once

#include <optional>

#include "app/program.h"
#include "platform/headless/headless_desktop.h"
#include "script/names.h"

namespace mevracard::script {

/// Keeps the glides of the main window, which a desktop clears as it shows them.
class GlideKeeper final : public HeadlessDesktop {
 public:
  using HeadlessDesktop::HeadlessDesktop;

  std::vector<Glide> glided;

  void attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) override {
    main_ = forms.front();
    HeadlessDesktop::attach(std::move(forms), std::move(handler));
  }
  void present() override {
    glided.insert(glided.end(), main_->glides.begin(), main_->glides.end());
    HeadlessDesktop::present();
  }

 private:
  const Form* main_ = nullptr;
};

/// One world with the program that runs in it. What reaches the outside world is printed.
class Session {
 public:
  Session();

  GlideKeeper desktop;
  bool watched = false;  ///< whether `tellState` prints anything

  /// Starts the program anew in this world; it must not be running.
  void start();
  /// The deck of every later deal; empty for a shuffled one.
  void stackDeck(const std::optional<Deck>& deck);

  /// Scripts know one `playCard`: the card last offered, asked about, demonstrated or considered by
  /// the computer. To be called after every command.
  void joinPlayCard();

  /// Prints a digest of all that a script can ask for: "state 3f2a", and what led to it.
  void tellState(std::string_view why);

  // The started program, also after it has ended. Throw ScriptError before the first start.
  [[nodiscard]] MainWindow& window();
  [[nodiscard]] const Names& names();

 private:
  std::optional<Deck> stackedDeck_;
  std::optional<Program> program_;
  std::optional<Names> names_;
};

/// One line of standard output.
void print(std::string_view line);

}  // namespace mevracard::script
