#include "ui/design.h"
#include "ui/main_window.h"

namespace mevracard {

namespace {

constexpr ShapeForm rectangle = ShapeForm::Rectangle;
constexpr ShapeForm rounded = ShapeForm::RoundedRectangle;
constexpr ShapeForm ellipse = ShapeForm::Ellipse;

constexpr const char* sans = "MS Sans Serif";
constexpr Font plain{};
constexpr Font small{sans, 8.25F, true};
constexpr Font smallItalic{sans, 8.25F, false, true};
constexpr Font caption{sans, 9.75F, true};
constexpr Font heading{sans, 12.0F, true};
constexpr Font counter{sans, 13.5F};
constexpr Font resultFont{sans, 13.5F, true};
constexpr Font statusFont{sans, 18.0F};
constexpr Font discardFont{"Times New Roman", 9.75F, true};
constexpr Alignment centred = Alignment::Centre;

const LabelLook handCaption{handColour, black, caption, centred};
const LabelLook restHeading{teal, black, heading, centred, true};
const LabelLook restCount{teal, black, counter, centred};
const LabelLook passHeading{pink, black, heading, centred, true};
const LabelLook passCount{pink, black, counter, centred};
const LabelLook cardNumber{paleGreen, black, small, centred};
const LabelLook statusLine{lightOrange, red, statusFont, centred};
const LabelLook resultText{lightOrange, red, resultFont};
const LabelLook resultBox{lightOrange, red, resultFont, centred, true};
const LabelLook instruction{salmon, darkRed, small, centred};
const LabelLook hint{orange, black, plain, centred};
const LabelLook panelHeading{paleGreen, darkGreen, small, centred};
const LabelLook panelScale{paleGreen, black, smallItalic};
const LabelLook panelGround{paleGreen, black, plain};

// clang-format off
void designCounters(TableControls& t) {
  auto& [computersRest, playersRest] = t.cardsLeft.values;
  auto& [computersPasses, playersPasses] = t.passes.values;
  design(computersRest.heading,   {12960,  600, 1815, 375}, "Rest of Card", restHeading);
  design(computersRest.count,     {14040,  990,  735, 495}, "14",           restCount);
  design(playersRest.heading,     {13080, 9840, 1695, 375}, "Rest of Card", restHeading);
  design(playersRest.count,       {14040, 9310,  735, 495}, "14",           restCount);
  design(computersPasses.heading, {  360,  600, 1695, 375}, "No. of Pass",  passHeading);
  design(computersPasses.count,   {  360,  990,  735, 495}, "0",            passCount);
  design(playersPasses.heading,   {  360, 9840, 1695, 375}, "No. of Pass",  passHeading);
  design(playersPasses.count,     {  360, 9310,  735, 495}, "0",            passCount);
}

void designTable(TableControls& t) {
  design(t.handCaptions[0],    {12600,  960, 1455, 735}, "Computer's Cards", handCaption);
  design(t.handCaptions[1],    {12600, 9480, 1455, 495}, "Your Cards",       handCaption);
  place(t.captionSpares[0],    {12067,     0, 3600, 480});
  place(t.captionSpares[1],    {12127, 10275, 3600, 370});
  t.handCaptions[0].spare = &t.captionSpares[0];
  t.handCaptions[1].spare = &t.captionSpares[1];
  design(t.leftGuides[0],   6240, 4680,   360, 1560, darkBlue, 5);
  design(t.leftGuides[1],   6240, 6360,   360, 3240, darkBlue, 5);
  design(t.rightGuides[0],  7920, 6360, 14760, 9240, darkBlue, 5);
  design(t.rightGuides[1],  7920, 4680, 14760, 7680, darkBlue, 5);
  design(t.border[0],        360, 1560, 14760, 1560, darkGreen, 10);
  design(t.border[1],        360, 9240, 14760, 9240, darkGreen, 10);
  design(t.border[2],        360, 1560,   360, 9240, darkGreen, 10);
  design(t.border[3],      14760, 1560, 14760, 9240, darkGreen, 10);

  outline(t.centre,    rectangle, { 6240, 4680, 1695, 1695}, darkBlue, 5);
  solid(t.boxes[0],    rounded,   { 2160, 5880,  975, 1335}, handColour, handColour);
  t.boxes[0].outlined = false;
  solid(t.boxes[1],    rounded,   {13800, 1560,  975, 1335}, lightBlue, black);
  solid(t.markers[0],  rectangle, {14040, 1800,  495,  375}, blue, black);
  solid(t.markers[1],  rectangle, {14040, 2280,  495,  375}, blue, black);
}

/// Places are relative to the card's top-left corner. The deal puts the frames into the hands.
void designCard(CardControls& card) {
  place(card.frame, {0, 0, 495, 1095});
  card.frame.backColor = paleGreen;
  design(card.upper,           {120, 240, 255,  255}, "1", cardNumber);
  design(card.lower,           {120, 720, 255,  255}, "2", cardNumber);
  design(card.divider,           0, 600, 480,  600, black, 1);
  solid(card.back.ground,     rectangle, {  0,  90, 488, 1000}, olive, olive);
  solid(card.back.leaf,       ellipse,   {120, 480, 375,  375}, darkGreen, darkGreen);
  design(card.back.stem,       120, 1080, 240,  720, brown, 4);
  solid(card.back.lowerPetal, ellipse,   {240, 720, 135,  255}, salmon, salmon);
  solid(card.back.leftPetal,  ellipse,   {  0, 600, 255,  135}, salmon, salmon);
  solid(card.back.heart,      ellipse,   {240, 600, 135,  135}, yellow, yellow);
}

void designStatusAndDiscard(MainWindow& w) {
  design(w.status,  {840, 5640, 4815, 495}, "Same Number. Choose One", statusLine);
  w.status.foremost = true;
  design(w.discard, {50000, 9360, 135, 225}, "Discard");
  w.discard.font = discardFont;
  w.discard.backColor = buttonGreen;
  w.discard.keysOnly = true;
}

void designChoice(Choice& choice) {
  design(choice.rightTop,   {11880, 5280, 1092, 492}, "Right/Top");
  design(choice.leftBottom, {11880, 6240, 1092, 492}, "Left/Bottom");
  design(choice.cancel,     {12600, 5880,  975, 255}, "Cancel");
  design(choice.arrows[0],    3480, 6000, 11760, 6000, red, 3);
  design(choice.arrows[1],   12120, 5640, 11760, 6000, red, 3);
  design(choice.arrows[2],   12120, 6360, 11760, 6000, red, 3);
  design(choice.keys,       {15120, 10920, 75, 135}, "");
  choice.keys.keysOnly = true;
}

void designResult(Result& result) {
  design(result.deadlock,     { 840, 5640, 2415, 495}, "DEADLOCK!",     resultBox);
  design(result.youHave,      { 960, 6240, 2295, 375}, "You Have:",     resultText);
  design(result.computerHas,  { 960, 6600, 2295, 375}, "Computer Has:", resultText);
  design(result.yourSum,      {3360, 6120,  735, 495}, "0",             resultBox);
  design(result.computersSum, {3360, 6600,  735, 495}, "0",             resultBox);
  design(result.verdict,      { 840, 7080, 2415, 495}, "DEADLOCK!",     resultBox);
}

void designTutorial(Tutorial& tutorial) {
  design(tutorial.instruction, { 600, 2280, 2535, 975},
         " Click NEXT to go to the following step", instruction);
  design(tutorial.next,  {1200, 2880,  975, 375}, "NEXT >");
  design(tutorial.stop,  {2280, 2880,  495, 375}, "Stop");
  design(tutorial.hint,  { 600, 3240, 2535, 375}, "See Tips of Game for Help", hint);
}

void designSizePanel(SizePanel& panel) {
  design(panel.heading, { 600, 1800, 2055,  975}, "SCREEN CONTROL", panelHeading);
  design(panel.ground,  { 600, 2760, 2055, 1935}, "", panelGround);
  design(panel.limits,  { 720, 2280, 1695,  375}, "    Min                 Max      ", panelScale);
  place(panel.bar,      { 840, 2040, 1575,  255});
  panel.bar.minimum = smallestTableSize;
  panel.bar.maximum = largestTableSize;
  panel.bar.value = largestTableSize;
  panel.bar.spoken = "Size of the table";
  design(panel.ok,      {1320, 2640,  615,  255}, "OK");

  outline(panel.monitorBoxes[0], rectangle, {840, 3120, 1575, 1095}, black);
  outline(panel.monitorBoxes[1], rectangle, {720, 3000, 1815, 1335}, black);
  outline(panel.monitorBoxes[2], rectangle, {840, 3120,  855,  615}, black);
  panel.monitorBoxes[2].dashed = true;
  design(panel.monitorLines[0], 1440, 4320, 1200, 4560, black, 1);  // the foot
  design(panel.monitorLines[1], 1200, 4560, 2040, 4560, black, 1);
  design(panel.monitorLines[2], 1800, 4320, 2040, 4560, black, 1);
  design(panel.monitorLines[3], 1680, 3720, 2400, 4200, black, 1);  // a pointer
  design(panel.monitorLines[4], 1680, 3720, 2040, 3840, black, 1);
  design(panel.monitorLines[5], 1680, 3720, 1800, 3960, black, 1);
  design(panel.monitorLines[6], 2040, 4080, 2400, 4200, black, 1);
  design(panel.monitorLines[7], 2400, 4200, 2280, 3960, black, 1);
}
// clang-format on

void addCounters(Form& form, TableControls& t) {
  form.add(t.cardsLeft[Side::Computer].heading, "Label1", 0);
  form.add(t.cardsLeft[Side::Player].heading, "Label1", 1);
  form.add(t.passes[Side::Computer].heading, "Label1", 2);
  form.add(t.passes[Side::Player].heading, "Label1", 3);
  form.add(t.cardsLeft[Side::Computer].count, "sisa", 0);
  form.add(t.cardsLeft[Side::Player].count, "sisa", 1);
  form.add(t.passes[Side::Computer].count, "sisa", 2);
  form.add(t.passes[Side::Player].count, "sisa", 3);
}

void addTable(Form& form, TableControls& t) {
  // The captions of the hands come first: they reach over the table's edge, which must stay whole.
  addAll(form, t.handCaptions, "Label7");
  addAll(form, t.leftGuides, "linec");
  addAll(form, t.rightGuides, "Line3");
  addAll(form, t.border, "Line2");
  form.add(t.centre, "kjumlah");
  addAll(form, t.boxes, "kotak");
  addAll(form, t.markers, "hubung");
  addCounters(form, t);
  t.boxes[0].visible = false;
}

void addArrows(Form& form, Choice& choice) {
  form.add(choice.arrows[0], "panah1");
  form.add(choice.arrows[1], "panah2");
  form.add(choice.arrows[2], "panah3");
}

void addCard(Form& form, CardControls& card, int slot) {
  card.frame.layer = Layer::Cards;
  form.add(card.frame, "k", slot);
  form.addTo(card.frame, card.upper, "a", slot);
  form.addTo(card.frame, card.lower, "b", slot);
  form.addTo(card.frame, card.divider, "ln", slot);
  form.addTo(card.frame, card.back.ground, "luar1", slot);
  form.addTo(card.frame, card.back.leaf, "luar2", slot);
  form.addTo(card.frame, card.back.stem, "luar3", slot);
  form.addTo(card.frame, card.back.lowerPetal, "luar4", slot);
  form.addTo(card.frame, card.back.leftPetal, "luar5", slot);
  form.addTo(card.frame, card.back.heart, "luar6", slot);
  card.uncover();
}

/// Among the cards, so that they come in front of the table. Nothing of it shows yet.
void addAmongCards(Form& form, Control& control, std::string_view name, int index = -1) {
  control.layer = Layer::Cards;
  control.visible = false;
  form.add(control, name, index);
}

void addResult(Form& form, Result& result) {
  addAmongCards(form, result.deadlock, "akhir", 0);
  addAmongCards(form, result.youHave, "akhir", 1);
  addAmongCards(form, result.computerHas, "akhir", 2);
  addAmongCards(form, result.yourSum, "akhir", 3);
  addAmongCards(form, result.computersSum, "akhir", 4);
  addAmongCards(form, result.verdict, "akhir", 5);
}

void addStatusAndChoice(MainWindow& w) {
  addAmongCards(w.form, w.status, "tanda");
  addAmongCards(w.form, w.choice.rightTop, "kanan");
  addAmongCards(w.form, w.choice.leftBottom, "kiri");
  addAmongCards(w.form, w.choice.cancel, "canc");
  addAmongCards(w.form, w.discard, "mulai");
  addAmongCards(w.form, w.choice.keys, "hilang");
  w.choice.keys.visible = true;  // else it could not hold the focus
  w.choice.show(false);
}

void addPanel(Form& form, Control& control, std::string_view name) {
  control.layer = Layer::Panels;
  control.pinned = true;
  form.add(control, name);
}

void addTutorial(Form& form, Tutorial& tutorial) {
  addPanel(form, tutorial.instruction, "lblHow");
  addPanel(form, tutorial.next, "cmdHow");
  addPanel(form, tutorial.stop, "cmdCL");
  addPanel(form, tutorial.hint, "gttip");
  tutorial.show(false);
}

void addSizePanel(Form& form, SizePanel& panel) {
  addPanel(form, panel.ground, "gambarscr");
  addPanel(form, panel.heading, "ScreenControl");
  addPanel(form, panel.limits, "MinMax");
  addPanel(form, panel.bar, "scrctrl");
  addPanel(form, panel.ok, "cmdscreen");
  addPanel(form, panel.monitorBoxes[0], "mnt1");
  addPanel(form, panel.monitorBoxes[1], "mnt2");
  addPanel(form, panel.monitorBoxes[2], "mnt6");
  addPanel(form, panel.monitorLines[0], "mnt3");
  addPanel(form, panel.monitorLines[1], "mnt4");
  addPanel(form, panel.monitorLines[2], "mnt5");
  addPanel(form, panel.monitorLines[3], "mnt7");
  addPanel(form, panel.monitorLines[4], "mnt8");
  addPanel(form, panel.monitorLines[5], "mnt9");
  addPanel(form, panel.monitorLines[6], "mnt10");
  addPanel(form, panel.monitorLines[7], "mnt11");
  panel.show(false);
}

void designForm(MainWindow& w) {
  Form& form = w.form;
  form.name = "mevraku";
  form.caption = "Zub MevraCard";
  form.backColor = handColour;
  form.width = 12345;
  form.height = 6855;
  form.maximized = true;
  place(w.table.whole, {240, 120, 14640, 10495});
  form.whole = &w.table.whole;
  place(w.table.panels, {600, 1800, 2535, 2895});
  form.corner = &w.table.panels;
  form.timer = &w.timer;
  form.defaultFocus = &w.discard;
  form.escape = {&w.choice.cancel, &w.sizePanel.ok};
  form.seenFocus = &w.tutorial.next;
}

}  // namespace

void MainWindow::designControls() {
  designForm(*this);
  designCounters(table);
  designTable(table);
  for (CardControls& card : cards) designCard(card);
  cards[0].frame.backColor = handColour;
  designStatusAndDiscard(*this);
  designChoice(choice);
  designResult(result);
  designTutorial(tutorial);
  designSizePanel(sizePanel);

  addTable(form, table);
  addArrows(form, choice);
  for (const int slot : allSlots) addCard(form, card(slot), slot);
  addResult(form, result);
  addStatusAndChoice(*this);
  addTutorial(form, tutorial);
  addSizePanel(form, sizePanel);
}

}  // namespace mevracard
