#include "simulator/simulated_printer.h"

#include <algorithm>
#include <thread>

#include "asio.hpp"
#include "simulator/simulated_reply.h"

namespace stmon {
namespace {

using asio::ip::tcp;

constexpr size_t kLongestQuery = 1024;  // bytes; all blocks together take 41
constexpr size_t kFloodPiece = 16384;   // bytes sent at once

// What another kind of server might say, with bytes that would clear a terminal.
constexpr std::string_view kGarbage("HTTP/1.0 400 Bad Request\r\n\x1B[2J\x07\xFF\0 and so on\r\n",
                                    45);

}  // namespace

// One thread runs all its connections, and it alone touches the scenario: nothing needs a lock.
struct SimulatedPrinter {
  explicit SimulatedPrinter(const Scenario& told) : scenario(told), acceptor(context) {}

  Scenario scenario;
  size_t state = 0;       // the one that answers the next query
  uint32_t answered = 0;  // queries by this state
  uint16_t port = 0;
  asio::io_context context;
  tcp::acceptor acceptor;
  std::thread thread;
};

namespace {

// A connection. The operation in flight keeps it alive; one that starts no other closes it.
struct Session {
  Session(SimulatedPrinter& owner, tcp::socket accepted)
      : printer(owner), socket(std::move(accepted)), timer(owner.context) {}

  SimulatedPrinter& printer;
  tcp::socket socket;
  asio::steady_timer timer;
  std::array<char, 512> chunk{};
  std::string query;
  std::string reply;
  size_t sent = 0;
  uint32_t flood = 0;  // bytes still to be sent
};
using SessionPtr = std::shared_ptr<Session>;

void ReadQuery(const SessionPtr& session);

const PrinterState& NextState(SimulatedPrinter& printer) {
  const PrinterState& state = printer.scenario.states[printer.state];
  const bool more = printer.state + 1 < printer.scenario.states.size();
  if (more && ++printer.answered >= state.repeat) {
    ++printer.state;
    printer.answered = 0;
  }
  return state;
}

// Sends the whole of `reply`; then closes, or waits for the next query.
void SendReply(const SessionPtr& session, bool close) {
  asio::async_write(session->socket, asio::buffer(session->reply),
                    [session, close](const asio::error_code& error, size_t) {
                      if (!error && !close) ReadQuery(session);
                    });
}

// A byte a packet, so that the reader gets the reply in as many pieces as can be.
void SendSlowly(const SessionPtr& session) {
  if (session->sent == session->reply.size()) return ReadQuery(session);
  asio::async_write(session->socket, asio::buffer(&session->reply[session->sent], 1),
                    [session](const asio::error_code& error, size_t) {
                      if (error) return;
                      ++session->sent;
                      session->timer.expires_after(std::chrono::milliseconds(1));
                      session->timer.async_wait([session](const asio::error_code& stopped) {
                        if (!stopped) SendSlowly(session);
                      });
                    });
}

void SendFlood(const SessionPtr& session) {
  if (session->flood == 0) return;
  const auto size = std::min<size_t>(session->flood, session->reply.size());
  asio::async_write(session->socket, asio::buffer(session->reply.data(), size),
                    [session](const asio::error_code& error, size_t count) {
                      if (error) return;
                      session->flood -= static_cast<uint32_t>(count);
                      SendFlood(session);
                    });
}

void Reset(const SessionPtr& session) {
  asio::error_code ignored;
  session->socket.set_option(asio::socket_base::linger(true, 0), ignored);
  session->socket.close(ignored);
}

void Answer(const SessionPtr& session) {
  const PrinterState& state = NextState(session->printer);
  const std::string whole = BuildReply(state, RequestedBlocks(session->query));
  session->query.clear();
  session->reply = whole;
  session->sent = 0;
  switch (state.manner) {
    case Manner::Whole:
      return SendReply(session, false);
    case Manner::Slowly:
      return SendSlowly(session);
    case Manner::Twice:
      session->reply += whole;
      return SendReply(session, false);
    case Manner::Cut:
    case Manner::Stall:
      session->reply.resize(std::min<size_t>(session->reply.size(), state.amount));
      return SendReply(session, state.manner == Manner::Cut);
    case Manner::Silent:
      return ReadQuery(session);
    case Manner::Close:
      return;
    case Manner::Reset:
      return Reset(session);
    case Manner::Garbage:
      session->reply = kGarbage;
      return SendReply(session, true);
    case Manner::Flood:
      // A well-begun reply whose tray block goes on and on; its fields end, the block does not.
      session->reply = "\x1BT";
      while (session->reply.size() < kFloodPiece)
        session->reply += "\r1";
      session->flood = state.amount;
      return SendFlood(session);
  }
}

void ReadQuery(const SessionPtr& session) {
  session->socket.async_read_some(asio::buffer(session->chunk),
                                  [session](const asio::error_code& error, size_t count) {
                                    if (error) return;
                                    session->query.append(session->chunk.data(), count);
                                    if (session->query.ends_with(kEndMarker))
                                      return Answer(session);
                                    if (session->query.size() < kLongestQuery) ReadQuery(session);
                                  });
}

void Accept(SimulatedPrinter& printer) {
  printer.acceptor.async_accept([&printer](const asio::error_code& error, tcp::socket socket) {
    if (error == asio::error::operation_aborted) return;
    if (!error) {
      asio::error_code ignored;
      socket.set_option(tcp::no_delay(true), ignored);
      ReadQuery(std::make_shared<Session>(printer, std::move(socket)));
    }
    Accept(printer);
  });
}

bool Listen(tcp::acceptor& acceptor, uint16_t port, asio::error_code& error) {
  const tcp::endpoint endpoint(asio::ip::address_v4::loopback(), port);
  acceptor.open(endpoint.protocol(), error);
#ifndef _WIN32
  // Lets the port be used again right after another program has ended. On Windows the option would
  // let a second program take a port that is in use.
  if (!error) acceptor.set_option(tcp::acceptor::reuse_address(true), error);
#endif
  if (!error) acceptor.bind(endpoint, error);
  if (!error) acceptor.listen(tcp::acceptor::max_listen_connections, error);
  return !error;
}

void StopPrinter(SimulatedPrinter* printer) {
  if (!printer) return;
  printer->context.stop();
  if (printer->thread.joinable()) printer->thread.join();
  delete printer;
}

}  // namespace

std::unique_ptr<SimulatedPrinter, void (*)(SimulatedPrinter*)> StartPrinter(
    const Scenario& scenario, uint16_t port, std::string& trouble) {
  std::unique_ptr<SimulatedPrinter, void (*)(SimulatedPrinter*)> printer(
      new SimulatedPrinter(scenario), StopPrinter);
  asio::error_code error;
  if (!Listen(printer->acceptor, port, error)) {
    trouble = error == asio::error::address_in_use ? "the port is in use" : error.message();
    printer.reset();
    return printer;
  }
  printer->port = printer->acceptor.local_endpoint(error).port();
  Accept(*printer);
  SimulatedPrinter* raw = printer.get();
  printer->thread = std::thread([raw] { raw->context.run(); });
  return printer;
}

uint16_t PrinterPort(const SimulatedPrinter& printer) {
  return printer.port;
}

void ServeForever(SimulatedPrinter& printer) {
  printer.thread.join();
}

}  // namespace stmon
