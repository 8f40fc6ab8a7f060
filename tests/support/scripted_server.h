// A server on this machine that does what a script says, for whoever talks to one.
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

// Serves one connection in a thread of its own, between Begin and End. The script is
// written before Begin; it begins when somebody connects, and the connection is closed
// behind its last step. A step that waits longer than ten seconds goes wrong.
class ScriptedServer {
 public:
  ScriptedServer();  // listens on a free port of 127.0.0.1
  ~ScriptedServer();
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  int Port() const { return port_; }

  // --- The script

  // The next line, without its end, must be this one.
  void ExpectLine(const std::string& line);
  void Send(const std::string& bytes);
  // Sends each piece when the client's next SocketReceive has begun, so that each is
  // received by itself. Whatever Send has sent before must be received by one call each.
  void SendPieces(const std::vector<std::string>& pieces);
  void SendMany(char byte, std::size_t count);

  void Begin();
  // Waits for the end of the script, which goes wrong if nobody has connected. Returns what
  // went wrong first; empty if nothing did.
  std::string End();

 private:
  void Run();
  bool Wait(int handle);
  void Put(const std::string& bytes);
  std::string Line();
  void Wrong(const std::string& text);

  int listener_ = -1;
  int client_ = -1;
  int port_ = 0;
  int receives_ = 0;  // calls of SocketReceive when the server began
  int sent_ = 0;      // what was sent for one call each
  std::string read_;  // received and not looked at yet
  std::string wrong_;
  std::vector<std::function<void()>> script_;
  std::thread thread_;
};
