#include "tests/mail_music/dovecot.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr char kProgram[] = "/usr/sbin/dovecot";
constexpr int kPort = 110;
constexpr int kPatience = 200;  // tenths of a second
constexpr uid_t kMailUser = 8;  // "mail", whose the mails are
constexpr gid_t kMailGroup = 8;

sockaddr_in At(const std::string& address) {
  sockaddr_in at{};
  at.sin_family = AF_INET;
  at.sin_port = htons(kPort);
  inet_pton(AF_INET, address.c_str(), &at.sin_addr);
  return at;
}

// Why nobody can listen there; empty if somebody can.
std::string PortTrouble(const std::string& address) {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const int on = 1;
  setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  const sockaddr_in at = At(address);
  const int result = bind(listener, reinterpret_cast<const sockaddr*>(&at), sizeof at);
  const int error = errno;
  close(listener);
  if (result == 0) return "";
  return "port 110 of " + address + " cannot be bound: " + std::strerror(error) +
         " (the tests of a real mail server need the right to it, and nobody else on it)";
}

std::string Contents(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

}  // namespace

Dovecot::Dovecot(const std::map<std::string, int>& users) {
  std::string name = (fs::temp_directory_path() / "mirrell_mail_XXXXXX").string();
  if (mkdtemp(name.data())) folder_ = name;
  chmod(folder_.c_str(), 0755);
  const auto own = static_cast<unsigned>(getpid());
  address_ = "127." + std::to_string(1 + (own >> 16) % 250) + "." + std::to_string((own >> 8) % 256) + "." +
             std::to_string(1 + own % 254);
  for (const auto& [user, mails] : users) PutFolders(user, mails);
  PutConfiguration(users);
}

Dovecot::~Dovecot() {
  Stop();
  std::error_code error;
  if (!folder_.empty()) fs::remove_all(folder_, error);
}

void Dovecot::PutFolders(const std::string& user, int mails) const {
  const fs::path box = fs::path(folder_) / "mail" / user;
  for (const char* part : {"cur", "new", "tmp"}) fs::create_directories(box / part);
  for (int i = 1; i <= mails; ++i) {
    std::ofstream(box / "cur" / (std::to_string(1700000000 + i) + ".mirrell:2,"))
        << "From: sender@example\r\nTo: " << user << "@example\r\nSubject: mail " << i << "\r\n\r\nHello "
        << i << "\r\n";
  }
  chown((fs::path(folder_) / "mail").c_str(), kMailUser, kMailGroup);
  chown(box.c_str(), kMailUser, kMailGroup);
  for (const auto& item : fs::recursive_directory_iterator(box)) {
    chown(item.path().c_str(), kMailUser, kMailGroup);
  }
}

void Dovecot::PutConfiguration(const std::map<std::string, int>& users) const {
  std::ofstream passwords(folder_ + "/users");
  for (const auto& [user, mails] : users) passwords << user << ":{PLAIN}secret\n";
  std::ofstream(folder_ + "/dovecot.conf")
      << "protocols = pop3\n"
      << "instance_name = mirrell\n"
      << "listen = " << address_ << "\n"
      << "base_dir = " << folder_ << "/run\n"
      << "state_dir = " << folder_ << "/state\n"
      << "log_path = " << folder_ << "/log\n"
      << "login_greeting = Mirrell's post office.\n"
      << "ssl = no\n"
      << "disable_plaintext_auth = no\n"
      << "auth_failure_delay = 0\n"
      << "first_valid_uid = 1\n"
      << "mail_location = maildir:" << folder_ << "/mail/%u\n"
      << "passdb {\n  driver = passwd-file\n  args = " << folder_ << "/users\n}\n"
      << "userdb {\n  driver = static\n  args = uid=" << kMailUser << " gid=" << kMailGroup
      << " home=" << folder_ << "/mail/%u\n}\n"
      << "service pop3-login {\n"
      << "  inet_listener pop3 {\n    port = " << kPort << "\n  }\n"
      << "  inet_listener pop3s {\n    port = 0\n  }\n}\n"
      // Nobody waits because he was refused before.
      << "service anvil {\n  unix_listener anvil-auth-penalty {\n    mode = 0\n  }\n}\n";
}

std::string Dovecot::Start() {
  if (const std::string trouble = PortTrouble(address_); !trouble.empty()) return trouble;
  const std::string configuration = folder_ + "/dovecot.conf";
  const char* const arguments[] = {kProgram, "-F", "-c", configuration.c_str(), nullptr};
  const char* const environment[] = {"PATH=/usr/sbin:/usr/bin:/sbin:/bin", nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int output : {1, 2}) {
    posix_spawn_file_actions_addopen(&actions, output, (folder_ + "/output").c_str(),
                                     O_WRONLY | O_CREAT | O_APPEND, 0644);
  }
  const int result = posix_spawn(&process_, kProgram, &actions, nullptr, const_cast<char* const*>(arguments),
                                 const_cast<char* const*>(environment));
  posix_spawn_file_actions_destroy(&actions);
  if (result != 0) return std::string(kProgram) + " does not start: " + std::strerror(result);
  for (int i = 0; i < kPatience; ++i) {
    if (Answers()) return "";
    usleep(100000);
  }
  return "the mail server does not answer\n" + Contents(folder_ + "/output") + Contents(folder_ + "/log");
}

// Greets like itself.
bool Dovecot::Answers() const {
  const int client = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in at = At(address_);
  char text[100] = {};
  pollfd waiting{client, POLLIN, 0};
  if (connect(client, reinterpret_cast<const sockaddr*>(&at), sizeof at) == 0 &&
      poll(&waiting, 1, 5000) > 0) {
    recv(client, text, sizeof text - 1, 0);
  }
  close(client);
  return std::string(text) == kDovecotGreeting;
}

void Dovecot::Stop() {
  if (process_ <= 0) return;
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
  process_ = -1;
}

std::map<std::string, std::string> Dovecot::Mails(const std::string& user) const {
  std::map<std::string, std::string> mails;
  for (const char* part : {"cur", "new", "tmp"}) {
    for (const auto& item : fs::directory_iterator(fs::path(folder_) / "mail" / user / part)) {
      mails[std::string(part) + "/" + item.path().filename().string()] = Contents(item.path());
    }
  }
  return mails;
}
