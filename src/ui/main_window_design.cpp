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
constexpr Font result{sans, 13.5F, true};
constexpr Font status{sans, 18.0F};
constexpr Font discard{"Times New Roman", 9.75F, true};
constexpr Alignment centred = Alignment::Centre;

const LabelLook handCaption{handColour, black, caption, centred};
const LabelLook restHeading{teal, black, heading, centred, true};
const LabelLook restCount{teal, black, counter, centred};
const LabelLook passHeading{pink, black, heading, centred, true};
const LabelLook passCount{pink, black, counter, centred};
const LabelLook cardNumber{paleGreen, black, small, centred};
const LabelLook statusLine{lightOrange, red, status, centred};
const LabelLook resultText{lightOrange, red, result};
const LabelLook resultBox{lightOrange, red, result, centred, true};
const LabelLook guide{salmon, darkRed, small, centred};
const LabelLook hint{orange, black, plain, centred};
const LabelLook panelHeading{paleGreen, darkGreen, small, centred};
const LabelLook panelScale{paleGreen, black, smallItalic};
const LabelLook panelGround{paleGreen, black, plain};

// clang-format off
void designTable(MainWindow& w) {
  design(w.Label7[0], {12600,  960, 1455, 735}, "Computer's Cards", handCaption);
  design(w.Label7[1], {12600, 9480, 1455, 495}, "Your Cards",       handCaption);
  design(w.Label1[0], {12960,  600, 1815, 375}, "Rest of Card", restHeading);
  design(w.Label1[1], {13080, 9840, 1695, 375}, "Rest of Card", restHeading);
  design(w.Label1[2], {  360,  600, 1695, 375}, "No. of Pass",  passHeading);
  design(w.Label1[3], {  360, 9840, 1695, 375}, "No. of Pass",  passHeading);
  design(w.sisa[0],   {14040,  990,  735, 495}, "14", restCount);
  design(w.sisa[1],   {14040, 9310,  735, 495}, "14", restCount);
  design(w.sisa[2],   {  360,  990,  735, 495}, "0",  passCount);
  design(w.sisa[3],   {  360, 9310,  735, 495}, "0",  passCount);

  design(w.linec[0],  6240, 4680,   360, 1560, darkBlue, 5);
  design(w.linec[1],  6240, 6360,   360, 3240, darkBlue, 5);
  design(w.Line3[0],  7920, 6360, 14760, 9240, darkBlue, 5);
  design(w.Line3[1],  7920, 4680, 14760, 7680, darkBlue, 5);
  design(w.Line2[0],   360, 1560, 14760, 1560, darkGreen, 10);
  design(w.Line2[1],   360, 9240, 14760, 9240, darkGreen, 10);
  design(w.Line2[2],   360, 1560,   360, 9240, darkGreen, 10);
  design(w.Line2[3], 14760, 1560, 14760, 9240, darkGreen, 10);

  outline(w.kjumlah,  rectangle, { 6240, 4680, 1695, 1695}, darkBlue, 5);
  solid(w.kotak[0],   rounded,   { 2160, 5880,  975, 1335}, handColour, handColour);
  w.kotak[0].outlined = false;
  solid(w.kotak[1],   rounded,   {13800, 1560,  975, 1335}, lightBlue, black);
  solid(w.hubung[0],  rectangle, {14040, 1800,  495,  375}, blue, black);
  solid(w.hubung[1],  rectangle, {14040, 2280,  495,  375}, blue, black);
}

/// Places are relative to the card's top-left corner. The deal puts the frames into the hands.
void designCard(MainWindow& w, std::size_t i) {
  place(w.k[i], {0, 0, 495, 1095});
  w.k[i].backColor = i == 0 ? handColour : paleGreen;
  design(w.a[i],     {120, 240, 255,  255}, "1", cardNumber);
  design(w.b[i],     {120, 720, 255,  255}, "2", cardNumber);
  design(w.ln[i],       0, 600, 480,  600, black, 1);
  solid(w.luar1[i],  rectangle, {  0,  90, 488, 1000}, olive, olive);
  solid(w.luar2[i],  ellipse,   {120, 480, 375,  375}, darkGreen, darkGreen);
  design(w.luar3[i], 120, 1080, 240,  720, brown, 4);
  solid(w.luar4[i],  ellipse,   {240, 720, 135,  255}, salmon, salmon);
  solid(w.luar5[i],  ellipse,   {  0, 600, 255,  135}, salmon, salmon);
  solid(w.luar6[i],  ellipse,   {240, 600, 135,  135}, yellow, yellow);
}

void designStatusAndChoice(MainWindow& w) {
  design(w.tanda,    {840, 5640, 4815, 495}, "Same Number. Choose One", statusLine);
  design(w.akhir[0], { 840, 5640, 2415, 495}, "DEADLOCK!",     resultBox);
  design(w.akhir[1], { 960, 6240, 2295, 375}, "You Have:",     resultText);
  design(w.akhir[2], { 960, 6600, 2295, 375}, "Computer Has:", resultText);
  design(w.akhir[3], {3360, 6120,  735, 495}, "0",             resultBox);
  design(w.akhir[4], {3360, 6600,  735, 495}, "0",             resultBox);
  design(w.akhir[5], { 840, 7080, 2415, 495}, "DEADLOCK!",     resultBox);
  design(w.kanan,    {11880, 5280, 1092, 492}, "Right/Top");
  design(w.kiri,     {11880, 6240, 1092, 492}, "Left/Bottom");
  design(w.canc,     {12600, 5880,  975, 255}, "Cancel");
  design(w.panah1,    3480, 6000, 11760, 6000, red, 3);
  design(w.panah2,   12120, 5640, 11760, 6000, red, 3);
  design(w.panah3,   12120, 6360, 11760, 6000, red, 3);
  design(w.mulai,    {50000, 9360, 135, 225}, "Discard");
  w.mulai.font = discard;
  w.mulai.backColor = buttonGreen;
  w.mulai.keysOnly = true;
  design(w.hilang,   {15120, 10920, 75, 135}, "");
  w.hilang.keysOnly = true;
}

void designPanels(MainWindow& w) {
  design(w.lblHow, { 600, 2280, 2535, 975}, " Click NEXT to go to the following step", guide);
  design(w.cmdHow, {1200, 2880,  975, 375}, "NEXT >");
  design(w.cmdCL,  {2280, 2880,  495, 375}, "Stop");
  design(w.gttip,  { 600, 3240, 2535, 375}, "See Tips of Game for Help", hint);

  design(w.ScreenControl, { 600, 1800, 2055,  975}, "SCREEN CONTROL", panelHeading);
  design(w.gambarscr,     { 600, 2760, 2055, 1935}, "", panelGround);
  design(w.MinMax,        { 720, 2280, 1695,  375}, "    Min                 Max      ", panelScale);
  place(w.scrctrl,        { 840, 2040, 1575,  255});
  w.scrctrl.minimum = 70;
  w.scrctrl.maximum = 99;
  w.scrctrl.value = 99;
  design(w.cmdscreen,     {1320, 2640,  615,  255}, "OK");

  outline(w.mntBox[0], rectangle, {840, 3120, 1575, 1095}, black);  // mnt1, the monitor's screen
  outline(w.mntBox[1], rectangle, {720, 3000, 1815, 1335}, black);  // mnt2, its case
  outline(w.mntBox[2], rectangle, {840, 3120,  855,  615}, black);  // mnt6, a smaller screen
  w.mntBox[2].dashed = true;
  design(w.mntLine[0], 1440, 4320, 1200, 4560, black, 1);  // mnt3 to mnt5, the foot
  design(w.mntLine[1], 1200, 4560, 2040, 4560, black, 1);
  design(w.mntLine[2], 1800, 4320, 2040, 4560, black, 1);
  design(w.mntLine[3], 1680, 3720, 2400, 4200, black, 1);  // mnt7 to mnt11, a pointer
  design(w.mntLine[4], 1680, 3720, 2040, 3840, black, 1);
  design(w.mntLine[5], 1680, 3720, 1800, 3960, black, 1);
  design(w.mntLine[6], 2040, 4080, 2400, 4200, black, 1);
  design(w.mntLine[7], 2400, 4200, 2280, 3960, black, 1);
}
// clang-format on

void hideAll(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->visible = false;
}

void addTable(MainWindow& w) {
  // The captions of the hands come first: they reach over the table's edge, which must stay whole.
  addAll(w.form, w.Label7, "Label7");
  addAll(w.form, w.linec, "linec");
  addAll(w.form, w.Line3, "Line3");
  addAll(w.form, w.Line2, "Line2");
  w.form.add(w.kjumlah, "kjumlah");
  addAll(w.form, w.kotak, "kotak");
  addAll(w.form, w.hubung, "hubung");
  addAll(w.form, w.Label1, "Label1");
  addAll(w.form, w.sisa, "sisa");
  w.form.add(w.panah1, "panah1");
  w.form.add(w.panah2, "panah2");
  w.form.add(w.panah3, "panah3");
  hideAll({&w.kotak[0], &w.panah1, &w.panah2, &w.panah3});
}

void addCard(MainWindow& w, std::size_t i) {
  const int index = static_cast<int>(i);
  w.k[i].layer = Layer::Cards;
  w.form.add(w.k[i], "k", index);
  Form::addTo(w.k[i], w.a[i], "a", index);
  Form::addTo(w.k[i], w.b[i], "b", index);
  Form::addTo(w.k[i], w.ln[i], "ln", index);
  const std::array<Control*, 6> back{&w.luar1[i], &w.luar2[i], &w.luar3[i],
                                     &w.luar4[i], &w.luar5[i], &w.luar6[i]};
  constexpr std::array<std::string_view, 6> names{"luar1", "luar2", "luar3",
                                                  "luar4", "luar5", "luar6"};
  for (std::size_t n = 0; n < back.size(); ++n) {
    back[n]->visible = false;
    Form::addTo(w.k[i], *back[n], names[n], index);
  }
}

void addStatusAndChoice(MainWindow& w) {
  for (auto& label : w.akhir) {
    label.layer = Layer::Cards;
    label.visible = false;
  }
  addAll(w.form, w.akhir, "akhir");
  for (Control* control :
       std::initializer_list<Control*>{&w.tanda, &w.kanan, &w.kiri, &w.canc, &w.mulai, &w.hilang}) {
    control->layer = Layer::Cards;
  }
  w.form.add(w.tanda, "tanda");
  w.form.add(w.kanan, "kanan");
  w.form.add(w.kiri, "kiri");
  w.form.add(w.canc, "canc");
  w.form.add(w.mulai, "mulai");
  w.form.add(w.hilang, "hilang");
  hideAll({&w.tanda, &w.kanan, &w.kiri, &w.canc, &w.mulai});
}

void addPanel(Form& form, Control& control, std::string_view name) {
  control.layer = Layer::Panels;
  control.visible = false;
  form.add(control, name);
}

void addPanels(MainWindow& w) {
  addPanel(w.form, w.lblHow, "lblHow");
  addPanel(w.form, w.cmdHow, "cmdHow");
  addPanel(w.form, w.cmdCL, "cmdCL");
  addPanel(w.form, w.gttip, "gttip");
  addPanel(w.form, w.gambarscr, "gambarscr");
  addPanel(w.form, w.ScreenControl, "ScreenControl");
  addPanel(w.form, w.MinMax, "MinMax");
  addPanel(w.form, w.scrctrl, "scrctrl");
  addPanel(w.form, w.cmdscreen, "cmdscreen");
  constexpr std::array<std::string_view, 3> boxes{"mnt1", "mnt2", "mnt6"};
  for (std::size_t n = 0; n < boxes.size(); ++n) addPanel(w.form, w.mntBox[n], boxes[n]);
  constexpr std::array<std::string_view, 8> lines{"mnt3", "mnt4", "mnt5",  "mnt7",
                                                  "mnt8", "mnt9", "mnt10", "mnt11"};
  for (std::size_t n = 0; n < lines.size(); ++n) addPanel(w.form, w.mntLine[n], lines[n]);
}

void link(MenuEntry& menu, std::initializer_list<MenuEntry*> entries) {
  menu.entries = entries;
  for (MenuEntry* entry : entries) entry->parent = &menu;
}

}  // namespace

void MainWindow::designControls() {
  MainWindow& w = *this;
  w.form.name = "mevraku";
  w.form.caption = "Zub MevraCard";
  w.form.backColor = handColour;
  w.form.width = 12345;
  w.form.height = 6855;
  w.form.maximized = true;

  designTable(w);
  for (std::size_t i = 0; i < cardCount; ++i) designCard(w, i);
  designStatusAndChoice(w);
  designPanels(w);

  addTable(w);
  for (std::size_t i = 0; i < cardCount; ++i) addCard(w, i);
  addStatusAndChoice(w);
  addPanels(w);
  w.form.timer = &w.jam;
  w.form.defaultFocus = &w.mulai;
}

void MainWindow::designMenu() {
  MainWindow& w = *this;
  // clang-format off
  w.file   = {"file",   "&File"};
  w.plevel = {"plevel", "&Player Level"};
  w.pl1    = {"pl1",    "Level 1"};
  w.pl2    = {"pl2",    "Level 2"};
  w.clevel = {"clevel", "&Computer Level"};
  w.cl1    = {"cl1",    "Level &1"};
  w.cl2    = {"cl2",    "Level &2"};
  w.rg     = {"rg",     "&New Game"};
  w.stat   = {"stat",   "&Statistics"};
  w.exit   = {"exit",   "&Exit"};
  w.help   = {"help",   "&Help"};
  w.author = {"author", "&About"};
  w.tips   = {"tips",   "&Tips of Game"};
  w.go     = {"go",     "&Go to Homepage"};
  w.rufoxx = {"rufoxx", "Screen&Option"};
  w.scr    = {"scr",    "Screen&Option"};
  w.how    = {"how",    "HowTo&Play"};
  // clang-format on
  w.pl1.checked = true;
  w.cl1.checked = true;

  link(w.plevel, {&w.pl1, &w.pl2});
  link(w.clevel, {&w.cl1, &w.cl2});
  link(w.file, {&w.plevel, &w.clevel, &w.rg, &w.stat, &w.exit});
  link(w.help, {&w.author, &w.tips, &w.go, &w.rufoxx});
  w.form.menu = {&w.file, &w.help, &w.scr, &w.how};
}

}  // namespace mevracard
