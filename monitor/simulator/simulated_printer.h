// A printer made of a scenario, on a loopback TCP port.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "simulator/scenario.h"

namespace stmon {

struct SimulatedPrinter;  // owns its sockets and its thread

// Listens at 127.0.0.1. `port` 0: any free port. Result: null and the reason in `trouble` when the
// port cannot be had.
std::unique_ptr<SimulatedPrinter, void (*)(SimulatedPrinter*)> StartPrinter(
    const Scenario& scenario, uint16_t port, std::string& trouble);
uint16_t PrinterPort(const SimulatedPrinter& printer);

// Waits until the process is ended from outside.
void ServeForever(SimulatedPrinter& printer);

}  // namespace stmon
