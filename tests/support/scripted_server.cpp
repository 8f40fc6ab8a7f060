#include "tests/support/scripted_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/posix/test_network.h"

namespace {
constexpr int kPatience = 10000;  // milliseconds
}

ScriptedServer::ScriptedServer() {
  listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
  listen(listener_, 1);
  getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
  port_ = ntohs(address.sin_port);
}

ScriptedServer::~ScriptedServer() {
  End();
  close(listener_);
}

void ScriptedServer::ExpectLine(const std::string& line) {
  script_.push_back([this, line] {
    const std::string came = Line();
    if (came != line) Wrong("the line \"" + came + "\" came, expected was \"" + line + "\"");
  });
}

void ScriptedServer::Send(const std::string& bytes) {
  script_.push_back([this, bytes] {
    Put(bytes);
    ++sent_;
  });
}

void ScriptedServer::SendPieces(const std::vector<std::string>& pieces) {
  for (const std::string& piece : pieces) {
    script_.push_back([this, piece] {
      // What was sent before has been received when a further call has begun.
      const int wanted = receives_ + sent_ + 1;
      for (int i = 0; i < kPatience && TestReceivesBegun() < wanted; ++i) {
        usleep(1000);
      }
      if (TestReceivesBegun() < wanted) Wrong("nobody received the piece \"" + piece + "\"");
      Put(piece);
      ++sent_;
    });
  }
}

void ScriptedServer::SendMany(char byte, std::size_t count) {
  script_.push_back([this, byte, count] { Put(std::string(count, byte)); });
}

void ScriptedServer::Begin() {
  wrong_.clear();
  read_.clear();
  sent_ = 0;
  receives_ = TestReceivesBegun();
  thread_ = std::thread([this] { Run(); });
}

std::string ScriptedServer::End() {
  if (thread_.joinable()) thread_.join();
  return wrong_;
}

void ScriptedServer::Run() {
  if (!Wait(listener_)) {
    Wrong("nobody connected");
    return;
  }
  client_ = accept(listener_, nullptr, nullptr);
  const int on = 1;
  setsockopt(client_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  for (const auto& step : script_) {
    if (wrong_.empty()) step();
  }
  close(client_);
}

bool ScriptedServer::Wait(int handle) {
  pollfd waiting{handle, POLLIN, 0};
  return poll(&waiting, 1, kPatience) > 0;
}

void ScriptedServer::Put(const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t sent = send(client_, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
    if (sent <= 0) {
      Wrong("the client has gone");
      return;
    }
    done += static_cast<std::size_t>(sent);
  }
}

std::string ScriptedServer::Line() {
  while (read_.find("\r\n") == std::string::npos) {
    char buffer[1024];
    const ssize_t got = Wait(client_) ? recv(client_, buffer, sizeof buffer, 0) : -1;
    if (got <= 0) break;
    read_.append(buffer, static_cast<std::size_t>(got));
  }
  const std::size_t end = read_.find("\r\n");
  const std::string line = read_.substr(0, end);
  read_.erase(0, end == std::string::npos ? end : end + 2);
  return line;
}

void ScriptedServer::Wrong(const std::string& text) {
  if (wrong_.empty()) wrong_ = text;
}
