#include "wire/transport.h"

#include <array>
#include <charconv>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "asio.hpp"
#include "wire/reply_frame.h"

namespace stmon {
namespace {

using asio::ip::tcp;
using Clock = std::chrono::steady_clock;
using Endpoints = std::vector<tcp::endpoint>;

struct Resolved {
  Endpoints endpoints;
  asio::error_code error;
};

// The system's name look-up cannot be called off, and may take half a minute. It runs on a thread
// of its own, which is given up when the time is over and touches nothing but what it was given.
Outcome Resolve(const Target& target, Clock::time_point deadline, Endpoints& endpoints,
                std::string& detail) {
  asio::error_code error;
  const auto address = asio::ip::make_address(target.host, error);
  if (!error) {
    endpoints.push_back({address, target.port});
    return Outcome::Answered;
  }
  auto promise = std::make_shared<std::promise<Resolved>>();
  auto future = promise->get_future();
  std::thread([promise, target] {
    asio::io_context context;
    tcp::resolver resolver(context);
    Resolved resolved;
    const auto results = resolver.resolve(target.host, std::to_string(target.port), resolved.error);
    for (const auto& result : results)
      resolved.endpoints.push_back(result.endpoint());
    promise->set_value(std::move(resolved));
  }).detach();
  if (future.wait_until(deadline) != std::future_status::ready) {
    detail = "the name service does not answer";
    return Outcome::NameUnknown;
  }
  const Resolved resolved = future.get();
  endpoints = resolved.endpoints;
  return endpoints.empty() ? Outcome::NameUnknown : Outcome::Answered;
}

// Runs the one operation in flight. Result: false when the time is over; the operation is then
// cancelled by closing the socket.
bool Finish(asio::io_context& context, tcp::socket& socket, Clock::time_point deadline) {
  context.restart();
  context.run_until(deadline);
  if (context.stopped()) return true;
  asio::error_code ignored;
  socket.close(ignored);
  context.run();
  return false;
}

// A connection that the other side breaks off shows as any of these, by system and moment.
bool IsReset(const asio::error_code& error) {
  return error == asio::error::connection_reset || error == asio::error::connection_aborted ||
         error == asio::error::broken_pipe;
}

Outcome ConnectFailure(const asio::error_code& error, std::string& detail) {
  if (error == asio::error::connection_refused) return Outcome::Refused;
  if (error == asio::error::timed_out) return Outcome::ConnectTimeout;
  detail = error.message();
  return Outcome::Unreachable;
}

// What does not begin like a reply, or does not end, is not read on: a host that is no printer
// might send for ever.
bool MayBeReply(const std::string& bytes) {
  return (bytes.empty() || bytes[0] == kEsc) && bytes.size() < kLongestReply;
}

// Reads until the reply is whole, the printer stops, or it is no use to read on.
void ReadReply(asio::io_context& context, tcp::socket& socket, Clock::time_point deadline,
               Exchange& exchange) {
  ReplyScanner scanner;
  std::array<char, 4096> chunk;
  std::string reply;
  asio::error_code error;
  bool in_time = true;
  do {
    size_t count = 0;
    socket.async_read_some(asio::buffer(chunk),
                           [&](const asio::error_code& result, size_t transferred) {
                             error = result;
                             count = transferred;
                           });
    in_time = Finish(context, socket, deadline);
    reply.append(chunk.data(), count);
  } while (!ScanReply(scanner, reply) && MayBeReply(reply) && in_time && !error);
  exchange = JudgeReply(std::move(reply));
  if (exchange.outcome == Outcome::CutOff && !in_time) exchange.outcome = Outcome::StillComing;
  if (exchange.outcome != Outcome::Empty) return;
  exchange.outcome = !in_time         ? Outcome::Silent
                     : IsReset(error) ? Outcome::Reset
                                      : Outcome::ClosedEarly;
}

bool ParsePort(std::string_view text, uint16_t& port) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
  return error == std::errc() && end == text.data() + text.size() && port != 0;
}

}  // namespace

bool ParseTarget(std::string_view text, Target& target) {
  target.port = kPrinterPort;
  std::string_view host = text;
  std::string_view port;
  bool with_port = false;
  if (text.starts_with('[')) {
    const size_t close = text.find(']');
    if (close == std::string_view::npos) return false;
    host = text.substr(1, close - 1);
    const std::string_view rest = text.substr(close + 1);
    if (!rest.empty() && rest[0] != ':') return false;
    with_port = !rest.empty();
    if (with_port) port = rest.substr(1);
  } else if (const size_t colon = text.find(':');
             colon != std::string_view::npos && colon == text.rfind(':')) {
    host = text.substr(0, colon);
    port = text.substr(colon + 1);
    with_port = true;
  }
  if (with_port && !ParsePort(port, target.port)) return false;
  // No host name has blanks or slashes; with them, it is a typing error or a URL.
  for (const char byte : host) {
    if (static_cast<unsigned char>(byte) <= 0x20 || byte == 0x7F || byte == '/') return false;
  }
  target.host = host;
  constexpr size_t kLongestHost = 255;  // of the domain name system
  return !host.empty() && host.size() <= kLongestHost;
}

std::string TargetText(const Target& target) {
  const bool bare = target.host.find(':') == std::string::npos;
  const std::string host = bare ? target.host : "[" + target.host + "]";
  return host + ":" + std::to_string(target.port);
}

Exchange AskPrinter(const Target& target, std::string_view query,
                    std::chrono::milliseconds timeout) {
  const auto deadline = Clock::now() + timeout;
  Exchange exchange;
  Endpoints endpoints;
  exchange.outcome = Resolve(target, deadline, endpoints, exchange.detail);
  if (exchange.outcome != Outcome::Answered) return exchange;

  asio::io_context context;
  tcp::socket socket(context);
  asio::error_code error;
  asio::async_connect(socket, endpoints, [&](const asio::error_code& result, const tcp::endpoint&) {
    error = result;
  });
  if (!Finish(context, socket, deadline)) {
    exchange.outcome = Outcome::ConnectTimeout;
    return exchange;
  }
  if (error) {
    exchange.outcome = ConnectFailure(error, exchange.detail);
    return exchange;
  }
  asio::async_write(socket, asio::buffer(query),
                    [&](const asio::error_code& result, size_t) { error = result; });
  // A printer that serves somebody else may reset the connection before it has read the query.
  const bool sent = Finish(context, socket, deadline);
  if (!sent || (error && !IsReset(error))) {
    exchange.outcome = Outcome::SendFailed;
    if (error && sent) exchange.detail = error.message();
    return exchange;
  }
  if (error) {
    exchange.outcome = Outcome::Reset;
    return exchange;
  }
  ReadReply(context, socket, deadline, exchange);
  socket.close(error);
  return exchange;
}

Exchange JudgeReply(std::string bytes) {
  Exchange exchange;
  exchange.reply = std::move(bytes);
  ReplyScanner scanner;
  const bool ended = ScanReply(scanner, exchange.reply);
  if (ended) {
    exchange.surplus = exchange.reply.size() - scanner.length;
    exchange.reply.resize(scanner.length);
  }
  if (exchange.reply.empty()) {
    exchange.outcome = Outcome::Empty;
  } else if (exchange.reply[0] != kEsc) {
    exchange.outcome = Outcome::NotAReply;
  } else if (!ended && exchange.reply.size() >= kLongestReply) {
    exchange.reply.resize(kLongestReply);
    exchange.outcome = Outcome::TooLong;
  } else {
    exchange.outcome = ended ? Outcome::Answered : Outcome::CutOff;
  }
  return exchange;
}

}  // namespace stmon
