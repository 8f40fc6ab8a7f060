#include <winsock2.h>

#include "tests/desktop/pop_server.h"

#include <atomic>
#include <mutex>
#include <thread>

namespace {

constexpr u_short kPort = 110;
constexpr int kTries = 50;

}  // namespace

struct PopServer::State {
  std::vector<std::string> replies;
  SOCKET listener = INVALID_SOCKET;
  std::string address;
  std::atomic<int> connections{0};
  std::atomic<int> ended{0};
  mutable std::mutex lock;
  std::vector<std::string> lines;
  std::thread accepts;
  std::vector<std::thread> talks;

  // An address of the loopback where nobody else listens.
  bool Listen() {
    const DWORD seed = GetCurrentProcessId() * 2654435761U + GetTickCount();
    for (DWORD i = 0; i < kTries; ++i) {
      const DWORD number = seed + i * 7919U;
      address = "127." + std::to_string(1 + number % 250) + "." + std::to_string((number >> 8) % 250) + "." +
                std::to_string(1 + (number >> 16) % 250);
      sockaddr_in at{};
      at.sin_family = AF_INET;
      at.sin_port = htons(kPort);
      at.sin_addr.s_addr = inet_addr(address.c_str());
      listener = socket(AF_INET, SOCK_STREAM, 0);
      if (bind(listener, reinterpret_cast<const sockaddr*>(&at), sizeof at) == 0 && listen(listener, 10) == 0)
        return true;
      closesocket(listener);
    }
    address.clear();
    listener = INVALID_SOCKET;
    return false;
  }

  // The next line without its end; empty when the client has gone.
  static std::string Line(SOCKET client) {
    std::string line;
    char letter = 0;
    while (line.find("\r\n") == std::string::npos) {
      if (recv(client, &letter, 1, 0) != 1) return "";
      line += letter;
    }
    return line.substr(0, line.size() - 2);
  }

  void Talk(SOCKET client) {
    for (std::size_t i = 0; i < replies.size(); ++i) {
      if (i > 0) {
        const std::string line = Line(client);
        if (line.empty()) break;
        const std::lock_guard<std::mutex> guard(lock);
        lines.push_back(line);
      }
      send(client, replies[i].data(), static_cast<int>(replies[i].size()), 0);
    }
    char rest[100];
    while (recv(client, rest, sizeof rest, 0) > 0) {
    }
    closesocket(client);
    ++ended;
  }

  void Accept() {
    for (;;) {
      const SOCKET client = accept(listener, nullptr, nullptr);
      if (client == INVALID_SOCKET) return;
      ++connections;
      talks.emplace_back([this, client] { Talk(client); });
    }
  }
};

PopServer::PopServer(const std::vector<std::string>& replies) : state_(std::make_unique<State>()) {
  WSADATA data{};
  WSAStartup(MAKEWORD(2, 2), &data);
  state_->replies = replies;
  if (state_->Listen()) state_->accepts = std::thread([state = state_.get()] { state->Accept(); });
}

PopServer::~PopServer() {
  if (state_->listener != INVALID_SOCKET) {
    shutdown(state_->listener, SD_BOTH);
    closesocket(state_->listener);
  }
  if (state_->accepts.joinable()) state_->accepts.join();
  for (std::thread& talk : state_->talks) talk.join();
  WSACleanup();
}

std::wstring PopServer::Address() const {
  return {state_->address.begin(), state_->address.end()};
}

int PopServer::Connections() const {
  return state_->connections;
}

int PopServer::Ended() const {
  return state_->ended;
}

std::vector<std::string> PopServer::Lines() const {
  const std::lock_guard<std::mutex> guard(state_->lock);
  return state_->lines;
}
