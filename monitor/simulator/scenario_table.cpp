#include "simulator/scenario.h"

namespace stmon {

// Printer paper numbers: 2 A3, 4 B4, 6 A4, 8 B5, 10 A5, -1 no paper, 128 tray not in place.
const NamedScenario kNamedScenarios[] = {
    //  name              what it shows                                       lines
    {"ready", "ready, nothing to do", ""},
    {"warnings", "ready, but toner and waste bottle will soon need care",
     "status 65,68,81,8\n"
     "tray 1 6 10\n"
     "tray 2 2 25\n"},
    {"no-paper", "tray 1 is empty",
     "status 32\n"
     "tray 1 -1 0\n"
     "tray 2 2 50\n"},
    {"cover-open", "the front cover is open", "status 37\n"},
    {"toner-empty", "two toners are empty, a third nearly so", "status 66,69,71\n"},
    {"misfeed", "paper is stuck in the duplex unit",
     "status 96\n"
     "duplex yes\n"},
    {"service-call", "a mechanical problem", "status 52\n"},
    {"energy-saver", "ready, saving energy", "status 18\n"},
    {"offline", "switched offline at its panel",
     "status 0\n"
     "online no\n"},
    {"unknown-code", "a status code that nobody knows", "status 777\n"},
    {"options", "duplex unit, a third tray, several bins",
     "duplex yes\n"
     "option F 3\n"
     "option T 64\n"
     "tray 1 6 100\n"
     "tray 2 2 75\n"
     "tray 3 8 50\n"
     "tray T 6 25\n"
     "bin 1 0\n"
     "bin 2 1\n"},
    {"changing", "runs out of paper, is refilled, and so on through a working day",
     "repeat 2\n"
     "next\n"
     "status 32\n"
     "tray 1 -1 0\n"
     "tray 2 2 50\n"
     "next\n"
     "status 0,68\n"
     "repeat 1\n"
     "tray 1 6 100\n"
     "tray 2 2 50\n"
     "next\n"
     "manner close\n"
     "next\n"
     "manner whole\n"
     "status 0\n"},
    {"cut-off", "sends half of its answer and closes", "manner cut 20\n"},
    {"stalls", "sends half of its answer and no more", "manner stall 20\n"},
    {"silence", "takes the query and never answers", "manner silent\n"},
    {"close", "closes without an answer", "manner close\n"},
    {"reset", "resets the connection", "manner reset\n"},
    {"garbage", "answers something that is no reply", "manner garbage\n"},
    {"one-byte", "sends its answer byte by byte", "manner slowly\n"},
    {"two-replies", "sends two answers in one packet", "manner twice\n"},
    {"flood", "sends ten megabytes without an end", "manner flood 10000000\n"},
    {nullptr, nullptr, nullptr},  // closing row
};

}  // namespace stmon
