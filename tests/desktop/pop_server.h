// A mail server on this machine that answers as it is told, to as many as connect.
#pragma once

#include <memory>
#include <string>
#include <vector>

class PopServer {
 public:
  // The greeting and then a reply for each line that comes; the connection is closed behind
  // the last one.
  explicit PopServer(const std::vector<std::string>& replies);
  ~PopServer();
  PopServer(const PopServer&) = delete;
  PopServer& operator=(const PopServer&) = delete;

  // Where it listens, at port 110; empty when it cannot.
  std::wstring Address() const;
  // Connections that have been made, and those of them that are over.
  int Connections() const;
  int Ended() const;
  // All lines that came, in order.
  std::vector<std::string> Lines() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};
