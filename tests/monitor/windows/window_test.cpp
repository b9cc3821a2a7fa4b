// The window program as its users meet it: started as a process, read and pressed from outside.
#include <windows.h>

#include <chrono>
#include <string>
#include <thread>

#include "doctest/doctest.h"
#include "simulator/simulated_printer.h"
#include "stmonw/resource.h"

namespace {

// Windows need a display there.
bool HasWindows() {
  const HWND window =
      CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  return window && DestroyWindow(window);
}

const auto kSkipped = doctest::skip(!HasWindows());

constexpr std::chrono::seconds kPatience(20);  // a slow machine; nothing waits longer than it must

template <class Condition>
bool WaitFor(Condition holds) {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (!holds()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  return true;
}

struct Program {
  PROCESS_INFORMATION process{};
  HWND window = nullptr;
};

BOOL CALLBACK TakeIfOwn(HWND window, LPARAM lparam) {
  auto& program = *reinterpret_cast<Program*>(lparam);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  if (owner != program.process.dwProcessId || !IsWindowVisible(window) ||
      std::wstring(name) != L"#32770")
    return TRUE;
  program.window = window;
  return FALSE;
}

Program Start(const std::wstring& arguments) {
  Program program;
  std::wstring line = L"stmonw.exe " + arguments;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  REQUIRE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                         &startup, &program.process));
  REQUIRE(WaitFor([&] {
    EnumWindows(TakeIfOwn, reinterpret_cast<LPARAM>(&program));
    return program.window != nullptr;
  }));
  return program;
}

DWORD Close(Program& program, UINT message, WPARAM wparam) {
  PostMessageW(program.window, message, wparam, 0);
  DWORD status = STILL_ACTIVE;
  if (WaitForSingleObject(program.process.hProcess, 5000) == WAIT_OBJECT_0)
    GetExitCodeProcess(program.process.hProcess, &status);
  else
    TerminateProcess(program.process.hProcess, status);
  CloseHandle(program.process.hThread);
  CloseHandle(program.process.hProcess);
  return status;
}

std::wstring Text(const Program& program, int id) {
  wchar_t text[1024] = L"";
  SendMessageW(GetDlgItem(program.window, id), WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
  return text;
}

std::wstring Line(const Program& program, int list, int row) {
  wchar_t text[1024] = L"";
  SendMessageW(GetDlgItem(program.window, list), LB_GETTEXT, row, reinterpret_cast<LPARAM>(text));
  return text;
}

LRESULT Lines(const Program& program, int list) {
  return SendMessageW(GetDlgItem(program.window, list), LB_GETCOUNT, 0, 0);
}

void ChooseLanguage(const Program& program, const wchar_t* name) {
  HWND box = GetDlgItem(program.window, IDC_LANGUAGE);
  const LRESULT row = SendMessageW(box, CB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>(name));
  REQUIRE(row != CB_ERR);
  SendMessageW(box, CB_SETCURSEL, row, 0);
  SendMessageW(program.window, WM_COMMAND, MAKEWPARAM(IDC_LANGUAGE, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(box));
}

auto StartPrinterWith(const char* lines, uint16_t port) {
  stmon::Scenario scenario;
  REQUIRE(stmon::ReadScenario(lines, scenario) == "");
  std::string trouble;
  auto printer = stmon::StartPrinter(scenario, port, trouble);
  REQUIRE(printer);
  return printer;
}

// Pixels on the screen that are not white, in the middle row of the picture.
int DrawnPixels(const Program& program) {
  RECT place;
  GetWindowRect(GetDlgItem(program.window, IDC_PICTURE), &place);
  HDC screen = GetDC(nullptr);
  int drawn = 0;
  for (LONG x = place.left + 4; x < place.right - 4; ++x)
    drawn += GetPixel(screen, x, (place.top + place.bottom) / 2) != RGB(255, 255, 255);
  ReleaseDC(nullptr, screen);
  return drawn;
}

}  // namespace

TEST_CASE("the window tells a printer's state, its absence and its return" * kSkipped) {
  auto printer = StartPrinterWith("status 71,69,81\ntray 1 6 75\ntray 2 -1 0\noption F 3\n", 0);
  const uint16_t port = stmon::PrinterPort(*printer);
  Program program = Start(L"127.0.0.1:" + std::to_wstring(port) + L" --lang de --interval 1");

  CHECK(WaitFor([&] { return Text(program, IDC_SHORT) == L"Kein Toner"; }));
  CHECK(Text(program, IDC_DETAIL).find(L"Cyan") != std::wstring::npos);
  CHECK(Text(program, IDC_DETAIL).find(L"Gelb") != std::wstring::npos);
  REQUIRE(Lines(program, IDC_OTHERS) == 1);
  CHECK(Line(program, IDC_OTHERS, 0).find(L"Resttoner") != std::wstring::npos);
  REQUIRE(Lines(program, IDC_TRAYS) == 2);
  CHECK(Line(program, IDC_TRAYS, 0) == L"Papierfach 1 (aktiv), A4, 75 %");
  CHECK(Line(program, IDC_TRAYS, 1) == L"Papierfach 2, kein Papier, 0 %");
  CHECK(Line(program, IDC_EQUIPMENT, 0) == L"Hefter");
  CHECK(WaitFor([&] { return DrawnPixels(program) > 20; }));

  ChooseLanguage(program, L"\u65E5\u672C\u8A9E (JP)");
  CHECK(Text(program, IDC_SHORT) == L"\uFF84\uFF85\uFF70\u306A\u3057");
  CHECK(Line(program, IDC_TRAYS, 0)
            .starts_with(L"\uFF84\uFF9A\uFF72"
                         L"1"));
  ChooseLanguage(program, L"\u010Ce\u0161tina (CS)");
  CHECK(Text(program, IDC_SHORT).find(L'?') == std::wstring::npos);

  ChooseLanguage(program, L"English (EN)");
  printer.reset();
  CHECK(WaitFor([&] { return Text(program, IDC_SHORT) == L"No Response From Printer"; }));
  CHECK(Lines(program, IDC_TRAYS) == 2);
  CHECK(
      WaitFor([&] { return Text(program, IDC_CONNECTION).find(L" s ago") != std::wstring::npos; }));

  printer = StartPrinterWith("status 52\n", port);
  CHECK(WaitFor([&] { return Text(program, IDC_SHORT) == L"Call Service Center"; }));
  CHECK(Text(program, IDC_CONNECTION).find(L"answered at") != std::wstring::npos);
  CHECK(Close(program, WM_COMMAND, IDCANCEL) == 0);
}

TEST_CASE("the window asks another printer when told so, and ends while one is silent" * kSkipped) {
  Program program = Start(L"--scenario cover-open --lang en");
  CHECK(WaitFor([&] { return Text(program, IDC_SHORT) == L"Cover Open"; }));
  SendMessageW(GetDlgItem(program.window, IDC_PRINTER), WM_SETTEXT, 0,
               reinterpret_cast<LPARAM>(L"Simulated printer: silence"));
  SendMessageW(program.window, WM_COMMAND, IDOK, 0);
  CHECK(Lines(program, IDC_TRAYS) == 0);
  CHECK(Text(program, IDC_SHORT) != L"Cover Open");
  CHECK(Close(program, WM_CLOSE, 0) == 0);
}

TEST_CASE("wrong usage is told in a box" * kSkipped) {
  Program program = Start(L"--lang xx");
  CHECK(Close(program, WM_COMMAND, IDOK) == 3);
}
