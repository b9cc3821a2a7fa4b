#include "stmonw/window.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "simulator/simulated_printer.h"
#include "stmonw/item_drawing.h"
#include "stmonw/poller.h"
#include "stmonw/printer_picture.h"
#include "stmonw/resource.h"
#include "stmonw/view.h"
#include "system/wide_text.h"
#include "wire/full_query.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmonw {
namespace {

using stmon::Utf8;
using stmon::Wide;

constexpr UINT kAnswerMessage = WM_APP;
constexpr UINT_PTR kAgeTimer = 1;
constexpr UINT kAgePeriod = 1000;  // ms

using Printer = decltype(stmon::StartPrinter({}, 0, std::declval<std::string&>()));

struct Window {
  HINSTANCE instance = nullptr;
  HWND dialog = nullptr;
  HWND easel = nullptr;
  Settings settings;

  Printer printer{nullptr, nullptr};  // the simulated one, when it is asked
  std::string scenario;               // which it plays
  std::shared_ptr<Poller> poller;
  std::string query;
  std::wstring asked;  // what the printer field said when polling began
  Knowledge knowledge;

  // What the controls show.
  View view;
  std::wstring connection;
  PrnBitmap layers{};
  HBITMAP picture = nullptr;
  HFONT textFont = nullptr;  // for the printer's texts
  HFONT headlineFont = nullptr;
};

std::string Say(const Window& window, stmon::Phrase phrase) {
  return stmon::Say(phrase, *window.settings.language);
}

bool IsJapanese(const stmon::Language& language) {
  return language.id == 1041;
}

std::wstring SimulatedPrefix(const stmon::Language& language) {
  return Wide(stmon::Say(stmon::Phrase::SimulatedPrinter, language) + ": ");
}

HWND Item(const Window& window, int id) {
  return GetDlgItem(window.dialog, id);
}

std::wstring ItemText(const Window& window, int id) {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(Item(window, id))) + 1, L'\0');
  text.resize(static_cast<size_t>(
      GetWindowTextW(Item(window, id), text.data(), static_cast<int>(text.size()))));
  return text;
}

// ---- Fonts, labels and places -----------------------------------------------------------------

struct Label {
  int id;
  stmon::Phrase phrase;
};

constexpr Label kLabels[] = {
    {IDC_PRINTER_LABEL, stmon::Phrase::PrinterField},
    {IDOK, stmon::Phrase::PollNow},
    {IDC_INTERVAL_LABEL, stmon::Phrase::Every},
    {IDC_SECONDS_LABEL, stmon::Phrase::EverySeconds},
    {IDC_LANGUAGE_LABEL, stmon::Phrase::LanguageField},
    {IDC_OTHERS_LABEL, stmon::Phrase::OthersList},
    {IDC_TRAYS_LABEL, stmon::Phrase::TraysList},
    {IDC_EQUIPMENT_LABEL, stmon::Phrase::EquipmentList},
    {IDCANCEL, stmon::Phrase::Close},
};

// Asking for the character set makes the system choose a font that has the language's letters, also
// where the dialog's own has none and no substitute is set up.
void MakeFonts(Window& window) {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window.dialog, WM_GETFONT, 0, 0)), sizeof font,
             &font);
  if (IsJapanese(*window.settings.language)) {
    font.lfCharSet = SHIFTJIS_CHARSET;
    lstrcpynW(font.lfFaceName, L"MS UI Gothic", LF_FACESIZE);
    font.lfHeight = MulDiv(font.lfHeight, 9, 8);
  }
  DeleteObject(window.textFont);
  DeleteObject(window.headlineFont);
  window.textFont = CreateFontIndirectW(&font);
  font.lfHeight = MulDiv(font.lfHeight, 5, 4);
  font.lfWeight = FW_BOLD;
  window.headlineFont = CreateFontIndirectW(&font);
  for (const int id : {IDC_PRINTER, IDC_LANGUAGE, IDC_DETAIL, IDC_OTHERS, IDC_TRAYS, IDC_EQUIPMENT})
    SendMessageW(Item(window, id), WM_SETFONT, reinterpret_cast<WPARAM>(window.textFont), TRUE);
  for (const Label& label : kLabels) {
    SendMessageW(Item(window, label.id), WM_SETFONT, reinterpret_cast<WPARAM>(window.textFont),
                 TRUE);
  }
}

RECT PlaceOf(const Window& window, int id) {
  RECT place;
  GetWindowRect(Item(window, id), &place);
  MapWindowPoints(nullptr, window.dialog, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

void Place(const Window& window, int id, int left, int top, int width, int height) {
  SetWindowPos(Item(window, id), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

int TextWidth(const Window& window, int id) {
  HDC dc = GetDC(window.dialog);
  HGDIOBJ before = SelectObject(dc, window.textFont);
  RECT area{};
  DrawTextW(dc, ItemText(window, id).c_str(), -1, &area, DT_SINGLELINE | DT_CALCRECT);
  SelectObject(dc, before);
  ReleaseDC(window.dialog, dc);
  return static_cast<int>(area.right);
}

// The controls of the uppermost line, from the right: those with a text take what it needs, and the
// printer's field what is left.
void FitTopLine(const Window& window) {
  const int gap = Scaled(5);
  const auto put = [&](int id, int right, int width) {
    const RECT place = PlaceOf(window, id);
    Place(window, id, right - width, place.top, width, place.bottom - place.top);
    return right - width - gap;
  };
  const auto width = [&](int id) {
    const RECT place = PlaceOf(window, id);
    return static_cast<int>(place.right - place.left);
  };
  int right = static_cast<int>(PlaceOf(window, IDC_LANGUAGE).right);
  right = put(IDC_LANGUAGE, right, width(IDC_LANGUAGE));
  right = put(IDC_LANGUAGE_LABEL, right, TextWidth(window, IDC_LANGUAGE_LABEL)) - gap;
  right = put(IDC_SECONDS_LABEL, right, TextWidth(window, IDC_SECONDS_LABEL));
  right = put(IDC_INTERVAL_SPIN, right, width(IDC_INTERVAL_SPIN)) + gap;
  right = put(IDC_INTERVAL, right, width(IDC_INTERVAL));
  right = put(IDC_INTERVAL_LABEL, right, TextWidth(window, IDC_INTERVAL_LABEL)) - gap;
  right = put(IDOK, right, TextWidth(window, IDOK) + 4 * gap);
  const int left = static_cast<int>(PlaceOf(window, IDC_PRINTER_LABEL).left);
  const int label = TextWidth(window, IDC_PRINTER_LABEL);
  put(IDC_PRINTER_LABEL, left + label, label);
  put(IDC_PRINTER, right, right - left - label - gap);
}

void ShowLabels(const Window& window) {
  for (const Label& label : kLabels)
    SetWindowTextW(Item(window, label.id), Wide(Say(window, label.phrase)).c_str());
  FitTopLine(window);
}

// Dialog units follow the font, the picture follows the screen's dots per inch: it takes the size
// that it needs, and the column beside it what is left.
void FitPicture(const Window& window) {
  RECT place = PlaceOf(window, IDC_PICTURE);
  RECT inside;
  GetClientRect(Item(window, IDC_PICTURE), &inside);
  const int border = static_cast<int>(place.right - place.left - inside.right);
  const LONG room = PlaceOf(window, IDC_TRAYS_LABEL).top - place.top - border - Scaled(4);
  const int height = std::min(Scaled(kPictureHeight), static_cast<int>(room));
  const int width = MulDiv(height, kPictureWidth, kPictureHeight) + border;
  Place(window, IDC_PICTURE, place.left, place.top, width, height + border);
  const LONG picture_right = place.left + width;
  place = PlaceOf(window, IDC_TRAYS);
  Place(window, IDC_TRAYS, place.left, place.top, width, place.bottom - place.top);

  const LONG shift = picture_right + Scaled(12) - PlaceOf(window, IDC_DETAIL).left;
  for (const int id : {IDC_STATE_ICON, IDC_SHORT, IDC_DETAIL, IDC_OTHERS_LABEL, IDC_OTHERS,
                       IDC_EQUIPMENT_LABEL, IDC_EQUIPMENT}) {
    place = PlaceOf(window, id);
    const LONG right = id == IDC_STATE_ICON ? place.right + shift : place.right;
    Place(window, id, place.left + shift, place.top, right - place.left - shift,
          place.bottom - place.top);
  }
}

// ---- Showing ----------------------------------------------------------------------------------

void SetText(const Window& window, int id, const std::wstring& text) {
  if (ItemText(window, id) != text) SetWindowTextW(Item(window, id), text.c_str());
}

void FillList(const Window& window, int id, const std::vector<std::wstring>& lines) {
  HWND list = Item(window, id);
  const LRESULT selected = SendMessageW(list, LB_GETCURSEL, 0, 0);
  const LRESULT top = SendMessageW(list, LB_GETTOPINDEX, 0, 0);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  SendMessageW(list, LB_RESETCONTENT, 0, 0);
  for (const std::wstring& line : lines)
    SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
  if (selected != LB_ERR) SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
  SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

void ShowConnection(Window& window) {
  window.connection =
      ConnectionText(window.knowledge, std::chrono::system_clock::now(), *window.settings.language);
  SetText(window, IDC_CONNECTION, window.connection);
}

void ShowPicture(Window& window) {
  const PrnBitmap layers = ComposePicture(ShownRecord(window.knowledge));
  if (window.picture && std::memcmp(&layers, &window.layers, sizeof layers) == 0) return;
  window.layers = layers;
  DeleteObject(window.picture);
  window.picture = DrawPicture(window.easel, window.dialog, IDC_PICTURE);
  InvalidateRect(Item(window, IDC_PICTURE), nullptr, FALSE);
}

// Only what has changed is touched.
void Show(Window& window) {
  View view = MakeView(window.knowledge, *window.settings.language);
  std::swap(view, window.view);
  const View& now = window.view;
  SetText(window, IDC_SHORT, now.shortText);
  SetText(window, IDC_PICTURE, now.shortText);  // for those who cannot see it
  SetText(window, IDC_DETAIL, now.detail);
  if (now.others != view.others) FillList(window, IDC_OTHERS, now.others);
  if (now.trays != view.trays) {
    std::vector<std::wstring> lines;
    for (const TrayLine& tray : now.trays)
      lines.push_back(tray.text);
    FillList(window, IDC_TRAYS, lines);
  }
  if (now.equipment != view.equipment) FillList(window, IDC_EQUIPMENT, now.equipment);
  if (now.icon != view.icon) {
    const auto icon = reinterpret_cast<LPARAM>(PatLoadIcon(now.icon.c_str()));
    SendMessageW(window.dialog, WM_SETICON, ICON_BIG, icon);
    SendMessageW(window.dialog, WM_SETICON, ICON_SMALL, icon);
    InvalidateRect(Item(window, IDC_STATE_ICON), nullptr, FALSE);
  }
  std::wstring title = now.shortText + L" - " + Wide(stmon::CleanUtf8(window.knowledge.source));
  wchar_t old_title[512] = L"";
  GetWindowTextW(window.dialog, old_title, 512);
  if (title != old_title) SetWindowTextW(window.dialog, title.c_str());
  ShowPicture(window);
  ShowConnection(window);
}

// ---- Asking -----------------------------------------------------------------------------------

void BeginPolling(Window& window, const stmon::Target& target, std::string source) {
  if (window.poller) StopPolling(*window.poller);
  window.knowledge = Knowledge{};
  window.knowledge.source = std::move(source);
  window.knowledge.since = std::chrono::system_clock::now();
  window.poller =
      StartPolling(target, window.query, window.settings.interval, window.dialog, kAnswerMessage);
  Show(window);
}

std::string SimulatedSource(const Window& window) {
  return Say(window, stmon::Phrase::SimulatedPrinter) + " (" + window.scenario + ")";
}

bool AskSimulated(Window& window, const std::string& name) {
  stmon::Scenario scenario;
  std::string trouble = stmon::LoadScenario(name, scenario);
  if (!trouble.empty()) {
    Complain(window.dialog, trouble);
    return false;
  }
  auto printer = stmon::StartPrinter(scenario, 0, trouble);
  if (!printer) {
    Complain(window.dialog, "Cannot start the simulated printer: " + trouble);
    return false;
  }
  const stmon::Target target{"127.0.0.1", stmon::PrinterPort(*printer)};
  window.scenario = name;
  BeginPolling(window, target, SimulatedSource(window));
  window.printer = std::move(printer);
  return true;
}

bool AskHost(Window& window, const std::string& text) {
  stmon::Target target;
  if (!stmon::ParseTarget(text, target)) {
    Complain(window.dialog,
             stmon::Say(stmon::Phrase::WrongAddress, *window.settings.language, {text}));
    return false;
  }
  BeginPolling(window, target, stmon::TargetText(target));
  window.printer.reset();
  return true;
}

// Asks what the printer field names; again at once when that is asked already.
void Ask(Window& window) {
  std::wstring text = ItemText(window, IDC_PRINTER);
  const auto from = text.find_first_not_of(L" \t");
  text = from == std::wstring::npos ? L""
                                    : text.substr(from, text.find_last_not_of(L" \t") + 1 - from);
  if (window.poller && text == window.asked) {
    PollNow(*window.poller);
    return;
  }
  const std::wstring prefix = SimulatedPrefix(*window.settings.language);
  const bool simulated = text.empty() || text.starts_with(prefix);
  const bool asked = simulated
                         ? AskSimulated(window, text.empty() ? window.settings.scenario
                                                             : Utf8(text.substr(prefix.size())))
                         : AskHost(window, Utf8(text));
  if (asked) window.asked = text;
}

void TakeAnswers(Window& window) {
  auto exchange = TakeAnswer(*window.poller);
  if (!exchange) return;
  stmon::Source source;
  source.name = window.knowledge.source;
  source.query = window.query;
  source.language = window.settings.language;
  Learn(window.knowledge, stmon::ReadExchange(source, std::move(*exchange)));
  Show(window);
}

// ---- Messages ---------------------------------------------------------------------------------

void FillScenarios(const Window& window) {
  HWND printers = Item(window, IDC_PRINTER);
  SendMessageW(printers, CB_RESETCONTENT, 0, 0);
  for (const stmon::NamedScenario* row = stmon::kNamedScenarios; row->name; ++row) {
    const std::wstring line = SimulatedPrefix(*window.settings.language) + Wide(row->name);
    SendMessageW(printers, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
  }
}

// What the printer's field says of a simulated printer, in the language chosen now.
void RenameSimulated(Window& window, const stmon::Language& before) {
  const auto renamed = [&](const std::wstring& text) {
    const std::wstring prefix = SimulatedPrefix(before);
    if (!text.starts_with(prefix)) return text;
    return SimulatedPrefix(*window.settings.language) + text.substr(prefix.size());
  };
  const std::wstring text = renamed(ItemText(window, IDC_PRINTER));
  FillScenarios(window);
  SetWindowTextW(Item(window, IDC_PRINTER), text.c_str());
  window.asked = renamed(window.asked);
  if (window.printer) window.knowledge.source = SimulatedSource(window);
}

void FillChoices(const Window& window) {
  HWND printers = Item(window, IDC_PRINTER);
  FillScenarios(window);
  SendMessageW(printers, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(Scaled(260)), 0);
  const Settings& settings = window.settings;
  SetWindowTextW(printers, (settings.printer.empty()
                                ? SimulatedPrefix(*settings.language) + Wide(settings.scenario)
                                : Wide(settings.printer))
                               .c_str());
  HWND languages = Item(window, IDC_LANGUAGE);
  for (const stmon::Language& row : stmon::kLanguages) {
    // The code is for fonts that lack the letters of the name.
    const std::wstring line = Wide(std::string(row.name) + " (" + row.code + ")");
    SendMessageW(languages, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    if (&row == settings.language)
      SendMessageW(languages, CB_SETCURSEL, static_cast<WPARAM>(&row - stmon::kLanguages), 0);
  }
  SendMessageW(Item(window, IDC_INTERVAL_SPIN), UDM_SETRANGE32, kShortestInterval,
               kLongestInterval);
  SetDlgItemInt(window.dialog, IDC_INTERVAL, static_cast<UINT>(settings.interval.count()), FALSE);
  SendMessageW(Item(window, IDC_INTERVAL), EM_LIMITTEXT, 4, 0);
}

void OnInit(Window& window) {
  window.easel = CreateEasel(window.instance);
  window.query = stmon::BuildQuery();
  FillChoices(window);
  MakeFonts(window);
  ShowLabels(window);
  FitPicture(window);
  SendMessageW(Item(window, IDC_DETAIL), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  SendMessageW(Item(window, IDC_TRAYS), LB_SETITEMHEIGHT, 0, Scaled(34));
  SetTimer(window.dialog, kAgeTimer, kAgePeriod, nullptr);
  Ask(window);
}

void OnLanguage(Window& window) {
  const LRESULT row = SendMessageW(Item(window, IDC_LANGUAGE), CB_GETCURSEL, 0, 0);
  if (row == CB_ERR) return;
  const stmon::Language& before = *window.settings.language;
  window.settings.language = &stmon::kLanguages[row];
  MakeFonts(window);
  ShowLabels(window);
  RenameSimulated(window, before);
  Translate(window.knowledge, *window.settings.language);
  Show(window);
  InvalidateRect(Item(window, IDC_SHORT), nullptr, FALSE);  // another font, perhaps the same text
  InvalidateRect(Item(window, IDC_CONNECTION), nullptr, FALSE);
}

void OnInterval(Window& window, UINT notification) {
  BOOL valid = FALSE;
  const int seconds = static_cast<int>(GetDlgItemInt(window.dialog, IDC_INTERVAL, &valid, FALSE));
  valid = valid && seconds >= kShortestInterval && seconds <= kLongestInterval;
  if (notification == EN_CHANGE && valid) {
    window.settings.interval = std::chrono::seconds(seconds);
    if (window.poller) SetInterval(*window.poller, window.settings.interval);
  }
  if (notification == EN_KILLFOCUS && !valid) {
    SetDlgItemInt(window.dialog, IDC_INTERVAL, static_cast<UINT>(window.settings.interval.count()),
                  FALSE);
  }
}

void OnCommand(Window& window, UINT id, UINT notification) {
  switch (id) {
    case IDOK:
      Ask(window);
      break;
    case IDCANCEL:
      DestroyWindow(window.dialog);
      break;
    case IDC_PRINTER:
      // The field takes the chosen text only after this message.
      if (notification == CBN_SELENDOK) PostMessageW(window.dialog, WM_COMMAND, IDOK, 0);
      break;
    case IDC_LANGUAGE:
      if (notification == CBN_SELCHANGE) OnLanguage(window);
      break;
    case IDC_INTERVAL:
      OnInterval(window, notification);
      break;
  }
}

void OnDrawItem(const Window& window, const DRAWITEMSTRUCT& item) {
  switch (item.CtlID) {
    case IDC_PICTURE:
      DrawPictureItem(item, window.picture);
      break;
    case IDC_STATE_ICON:
      DrawIconItem(item, window.view.icon);
      break;
    case IDC_SHORT:
      DrawTextItem(item, window.view.shortText, window.headlineFont);
      break;
    case IDC_CONNECTION:
      DrawTextItem(item, window.connection, window.textFont);
      break;
    case IDC_OTHERS:
      if (item.itemID < window.view.others.size())
        DrawWrappedItem(item, window.view.others[item.itemID], window.textFont);
      break;
    case IDC_TRAYS:
      if (item.itemID < window.view.trays.size())
        DrawTrayItem(item, window.view.trays[item.itemID], window.textFont);
      break;
  }
}

bool OnMeasureItem(const Window& window, MEASUREITEMSTRUCT& item) {
  if (item.CtlID != IDC_OTHERS || item.itemID >= window.view.others.size()) return false;
  item.itemHeight = static_cast<UINT>(
      WrappedHeight(Item(window, IDC_OTHERS), window.view.others[item.itemID], window.textFont));
  return true;
}

void OnDestroy(Window& window) {
  KillTimer(window.dialog, kAgeTimer);
  if (window.poller) StopPolling(*window.poller);
  DestroyWindow(window.easel);
  DeleteObject(window.picture);
  DeleteObject(window.textFont);
  DeleteObject(window.headlineFont);
  PostQuitMessage(0);
}

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, DWLP_USER, lparam);
    auto& made = *reinterpret_cast<Window*>(lparam);
    made.dialog = dialog;
    OnInit(made);
    return TRUE;
  }
  auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(dialog, DWLP_USER));
  if (!window) return FALSE;
  switch (message) {
    case kAnswerMessage:
      TakeAnswers(*window);
      return TRUE;
    case WM_TIMER:
      if (window->knowledge.latest && !window->knowledge.latest->trouble.empty())
        ShowConnection(*window);
      return TRUE;
    case WM_COMMAND:
      OnCommand(*window, LOWORD(wparam), HIWORD(wparam));
      return TRUE;
    case WM_DRAWITEM:
      OnDrawItem(*window, *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return TRUE;
    case WM_MEASUREITEM:
      return OnMeasureItem(*window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lparam));
    case WM_CLOSE:
      DestroyWindow(dialog);
      return TRUE;
    case WM_DESTROY:
      OnDestroy(*window);
      return TRUE;
  }
  return FALSE;
}

}  // namespace

bool RunWindow(HINSTANCE instance, int show, const Settings& settings) {
  Window window;
  window.instance = instance;
  window.settings = settings;
  HWND dialog = CreateDialogParamW(instance, MAKEINTRESOURCEW(IDD_MONITOR), nullptr,
                                   DialogProcedure, reinterpret_cast<LPARAM>(&window));
  if (!dialog) return false;
  ShowWindow(dialog, show);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (IsDialogMessageW(dialog, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  // A query in flight is waited for as long as a user would wait; then it ends with the process.
  if (window.poller) WaitForEnd(*window.poller, std::chrono::milliseconds(500));
  return true;
}

void Complain(HWND owner, const std::string& message) {
  MessageBoxW(owner, Wide(stmon::CleanUtf8(message)).c_str(),
              Wide(stmon::Say(stmon::Phrase::WindowTitle, stmon::UserLanguage())).c_str(),
              MB_OK | MB_ICONWARNING);
}

}  // namespace stmonw
