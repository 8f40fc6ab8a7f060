// Memory, time, sound, processes and sockets of the native build.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <thread>

#include "platform/file.h"
#include "platform/memory.h"
#include "platform/posix/faults.h"
#include "platform/posix/live_counts.h"
#include "platform/posix/test_clock.h"
#include "platform/posix/test_network.h"
#include "platform/process.h"
#include "platform/socket.h"
#include "platform/sound.h"
#include "platform/time.h"
#include "tests/platform/machinery.h"
#include "tests/support/scripted_server.h"

namespace {

class ServicesTest : public MachineryTest {};

TEST_F(ServicesTest, BlockIsZeroAndKnowsItsSize) {
  auto* block = static_cast<unsigned char*>(MemoryAllocate(1000));
  ASSERT_NE(block, nullptr);
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(block[i], 0);
  EXPECT_EQ(MemorySize(block), 1000U);
  EXPECT_EQ(PosixLive().blocks, 1);
  MemoryFree(block);
  EXPECT_EQ(PosixLive().blocks, 0);
  MemoryFree(nullptr);
  EXPECT_EQ(MemorySize(nullptr), 0U);
  FaultArm(FaultKind::Memory, 1);
  EXPECT_EQ(MemoryAllocate(10), nullptr);
}

TEST_F(ServicesTest, ClockStandsUntilItIsSet) {
  LocalTime now{};
  TimeGetLocal(&now);
  EXPECT_EQ(now.year, 2026);
  EXPECT_EQ(now.month, 11);
  EXPECT_EQ(now.day, 21);
  EXPECT_EQ(now.weekday, 6);
  EXPECT_EQ(now.hour, 9);
  EXPECT_EQ(now.minute, 30);
  EXPECT_EQ(now.second, 15);
  now.minute = 31;
  EXPECT_TRUE(TimeSetLocal(&now));
  LocalTime again{};
  TimeGetLocal(&again);
  EXPECT_EQ(again.minute, 31);
  TestClockClear();
  TimeGetLocal(&again);
  EXPECT_NE(again.year, 0);
}

TEST_F(ServicesTest, FileTimeBeforeTheEpochIsRefused) {
  LocalTime local{};
  EXPECT_FALSE(TimeFromFileTime(0, &local));
}

TEST_F(ServicesTest, SoundsAreWrittenDown) {
  SoundPlay("C:\\mirrell\\鈴.wav");
  EXPECT_EQ(SoundsPlayed(), Names{"C:\\mirrell\\鈴.wav"});
}

TEST_F(ServicesTest, ProcessIsWrittenDownWithItsFolderAndItsWait) {
  const ProcessHandle process = ProcessStart("notepad.exe \"a b.txt\"");
  ASSERT_NE(process, nullptr);
  ProcessWaitIdle(process, 5000);
  EXPECT_FALSE(ProcessesStarted()[0].closed);
  ProcessClose(process);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(ProcessesStarted()[0].commandLine, "notepad.exe \"a b.txt\"");
  EXPECT_EQ(ProcessesStarted()[0].folder, "C:\\mirrell");
  EXPECT_EQ(ProcessesStarted()[0].waited, 5000U);
  EXPECT_TRUE(ProcessesStarted()[0].closed);
  ProcessClose(nullptr);
  ProcessClose(process);
  EXPECT_EQ(TheFailure(), "ProcessClose: the handle is closed");
  ProcessWaitIdle(process, 1);
  EXPECT_EQ(TheFailure(), "ProcessWaitIdle: the handle is closed");
}

TEST_F(ServicesTest, ProcessThatDoesNotStartIsNull) {
  FaultArm(FaultKind::Process, 1);
  EXPECT_EQ(ProcessStart("a.exe"), nullptr);
  EXPECT_TRUE(ProcessesStarted().empty());
}

TEST_F(ServicesTest, AssociationIsFoundByExtensionForAFileThatExists) {
  AssociationSet(".txt", "C:\\windows\\notepad.exe");
  PutFile("C:\\mirrell\\a.TXT", "");
  PutFile("C:\\mirrell\\b.dat", "");
  PutFile("C:\\mirrell\\c.exe", "");
  char program[64];
  EXPECT_TRUE(AssociationFind("a.TXT", "C:\\mirrell\\", program, sizeof program));
  EXPECT_STREQ(program, "C:\\windows\\notepad.exe");
  EXPECT_TRUE(AssociationFind("C:\\mirrell\\a.TXT", "", program, sizeof program));
  EXPECT_TRUE(AssociationFind("c.exe", "C:\\mirrell", program, sizeof program));
  EXPECT_STREQ(program, "C:\\mirrell\\c.exe");
  EXPECT_FALSE(AssociationFind("b.dat", "C:\\mirrell", program, sizeof program));
  EXPECT_STREQ(program, "");
  EXPECT_FALSE(AssociationFind("none.txt", "C:\\mirrell", program, sizeof program));
  EXPECT_FALSE(AssociationFind("a.TXT", "C:\\mirrell", program, 5));
}

TEST_F(ServicesTest, ClassValueIsRead) {
  ClassValueSet(".TXT", "txtfile");
  char value[16];
  EXPECT_TRUE(ClassValue(".txt", value, sizeof value));
  EXPECT_STREQ(value, "txtfile");
  EXPECT_FALSE(ClassValue(".pdf", value, sizeof value));
  EXPECT_STREQ(value, "");
}

// A listening socket of this machine on a free port.
struct Listener {
  int handle = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int port = 0;
  Listener() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(handle, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(listen(handle, 1), 0);
    getsockname(handle, reinterpret_cast<sockaddr*>(&address), &size);
    port = ntohs(address.sin_port);
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener() { close(handle); }
};

TEST_F(ServicesTest, SocketSendsAndReceivesUntilTheEnd) {
  const Listener listener;
  std::string got;
  std::thread server([&] {
    const int other = accept(listener.handle, nullptr, nullptr);
    char buffer[16];
    const ssize_t size = recv(other, buffer, sizeof buffer, 0);
    got.assign(buffer, static_cast<std::size_t>(size > 0 ? size : 0));
    send(other, "+OK", 3, 0);
    close(other);
  });
  const int client = SocketConnect("127.0.0.1", listener.port);
  ASSERT_GE(client, 0);
  EXPECT_EQ(SocketSend(client, "QUIT", 4), 4);
  char buffer[16] = "";
  EXPECT_EQ(SocketReceive(client, buffer, sizeof buffer), 3);
  EXPECT_STREQ(buffer, "+OK");
  EXPECT_EQ(SocketReceive(client, buffer, sizeof buffer), 0);
  SocketClose(client);
  server.join();
  EXPECT_EQ(got, "QUIT");
}

TEST_F(ServicesTest, SocketThatCannotConnectIsMinusFour) {
  int port = 0;
  {
    const Listener gone;
    port = gone.port;
  }
  EXPECT_EQ(SocketConnect("127.0.0.1", port), -4);
}

TEST_F(ServicesTest, UnknownHostIsMinusTwo) {
  EXPECT_EQ(SocketConnect("no host of that name", 110), -2);
}

TEST_F(ServicesTest, ScriptedServerTalksLineByLine) {
  ScriptedServer server;
  server.Send("+OK ready\r\n");
  server.ExpectLine("USER me");
  server.SendPieces({"+O", "K\r\n"});
  server.SendMany('x', 100000);
  server.Begin();
  TestPortSet(110, server.Port());
  ASSERT_TRUE(SocketsStart());
  const int client = SocketConnect("localhost", 110);
  ASSERT_GE(client, 0);
  char buffer[1000];
  EXPECT_EQ(SocketReceive(client, buffer, sizeof buffer), 11);
  EXPECT_EQ(SocketSend(client, "USER me\r\n", 9), 9);
  // Each piece comes by itself.
  EXPECT_EQ(SocketReceive(client, buffer, sizeof buffer), 2);
  EXPECT_EQ(SocketReceive(client, buffer, 3), 3);
  int total = 0;
  for (int got = 1; got > 0; total += got) got = SocketReceive(client, buffer, sizeof buffer);
  EXPECT_EQ(total, 100000);
  SocketClose(client);
  SocketsEnd();
  EXPECT_EQ(server.End(), "");
  TestPortSet(110, 0);
}

TEST_F(ServicesTest, ScriptedServerTellsWhatWentWrong) {
  ScriptedServer server;
  server.ExpectLine("QUIT");
  server.Begin();
  const int client = SocketConnect("127.0.0.1", server.Port());
  EXPECT_EQ(SocketSend(client, "NOOP\r\n", 6), 6);
  SocketClose(client);
  EXPECT_EQ(server.End(), "the line \"NOOP\" came, expected was \"QUIT\"");
}

// What a client comes to that sends a line and waits for the end: 0, or the step at which
// it failed, counted down from -1.
int Talk(int port) {
  char buffer[4];
  if (!SocketsStart()) return -1;
  const int client = SocketConnect("127.0.0.1", port);
  int result = client < 0 ? client : 0;
  if (result == 0 && SocketSend(client, "a\r\n", 3) != 3) result = -5;
  if (result == 0 && SocketReceive(client, buffer, 4) != 0) result = -6;
  SocketClose(client);
  SocketsEnd();
  return result;
}

TEST_F(ServicesTest, EachStepOfTheNetworkFailsInItsTurn) {
  const int expected[] = {-1, -2, -3, -4, -5, -6, 0};
  for (int nth = 1; nth <= 7; ++nth) {
    ScriptedServer server;
    server.ExpectLine("a");
    constexpr int kConnected = 5;  // the step behind the connection
    if (nth >= kConnected) server.Begin();
    FaultArm(FaultKind::Socket, nth);
    EXPECT_EQ(Talk(server.Port()), expected[nth - 1]);
    EXPECT_EQ(FaultWasMet(), nth < 7);
  }
}

TEST_F(ServicesTest, NoSocketIsRefused) {
  char buffer[4];
  EXPECT_EQ(SocketSend(kNoSocket, "a", 1), -1);
  EXPECT_EQ(SocketReceive(kNoSocket, buffer, 4), -1);
  SocketClose(kNoSocket);
}

}  // namespace
