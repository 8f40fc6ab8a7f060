// The client's conversation with the mail server: blocking, one receive for one reply.
//
// Whatever the server sends is kept as it comes and looked at up to its first zero byte.
// A send or receive that fails leaves an empty reply.
#pragma once

inline constexpr int kMailReplySize = 51200;
inline constexpr int kMailTalkMax = 16;

// A conversation that is under way. While one waits in a box the tick may begin another,
// which ends first.
struct MailTalk {
  int socket;
  bool mail;  // the last reply reads as mail
};

struct MailTalkState {
  MailTalk talks[kMailTalkMax] = {};
  int count = 0;                        // the last one is the one that talks
  char reply[kMailReplySize + 1] = {};  // the last reply to any of them, and a zero byte
};
extern MailTalkState MailTalks;

// Why there is no conversation.
inline constexpr int kMailNoNetwork = -1;
inline constexpr int kMailHostUnknown = -2;
inline constexpr int kMailNoSocket = -3;
inline constexpr int kMailNoConnection = -4;
inline constexpr int kMailUnset = -5;  // server, user or password is empty

// Whether there is room for one more conversation.
bool MailTalkHasRoom();

// Connects to the server of MailLive. Returns 0, or why not.
int MailTalkBegin();

// Sends a command: `format`, with a word in it if it asks for one.
void MailTalkSay(const char* format, const char* word);
// Receives the next reply.
void MailTalkHear();

// Whether the reply that was heard last in this conversation reads as mail.
bool MailTalkHasMail();

// The last reply as a box can show it: its first bytes, in lines; no pair is split.
inline constexpr int kMailBoxBytes = 1000;
inline constexpr int kMailBoxLines = 20;
inline constexpr int kMailBoxColumns = 120;
inline constexpr int kMailBoxSize = kMailBoxBytes + kMailBoxLines + 1;
void MailReplyText(char (&text)[kMailBoxSize]);

// Ends this conversation and closes its socket.
void MailTalkEnd();

// Closes the sockets of all conversations: the program ends.
void MailSocketsClose();
