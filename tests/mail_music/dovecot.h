// A real POP3 server on this machine: Dovecot, with a configuration, users and mail folders
// of its own in a temporary folder.
#pragma once

#include <sys/types.h>

#include <map>
#include <string>

class Dovecot {
 public:
  // Users of the name and the number of mails they have; the password is "secret".
  explicit Dovecot(const std::map<std::string, int>& users);
  ~Dovecot();
  Dovecot(const Dovecot&) = delete;
  Dovecot& operator=(const Dovecot&) = delete;

  // Starts the server and waits until it answers. What went wrong; empty if nothing did.
  std::string Start();
  // Ends it; called by the end of the object too.
  void Stop();

  // Where it listens, at port 110: an address of the loopback that no other run uses.
  const std::string& Address() const { return address_; }
  // The mails of a user: file names and contents.
  std::map<std::string, std::string> Mails(const std::string& user) const;

 private:
  void PutFolders(const std::string& user, int mails) const;
  void PutConfiguration(const std::map<std::string, int>& users) const;
  bool Answers() const;

  std::string folder_;
  std::string address_;
  pid_t process_ = -1;
};

// What it greets with, and what it says about a login that it lets in or refuses.
inline constexpr char kDovecotGreeting[] = "+OK Mirrell's post office.\r\n";
inline constexpr char kDovecotUser[] = "+OK\r\n";
inline constexpr char kDovecotLogin[] = "+OK Logged in.\r\n";
inline constexpr char kDovecotRefusal[] = "-ERR [AUTH] Authentication failed.\r\n";
