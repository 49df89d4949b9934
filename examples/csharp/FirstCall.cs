// SPDX-License-Identifier: MIT
// A host in C# on the flat face: sets the brightness and a name in Chinese, reads both back and
// shows them.
//
//   first_call ADDRESS PORT [LEVEL]
using System;
using System.IO;
using ToviSdk;

internal static class FirstCall
{
  static int Main(string[] args)
  {
    ushort port = 0;
    int level = 80;
    if (args.Length < 2 || !ushort.TryParse(args[1], out port) ||
        args.Length > 2 && !int.TryParse(args[2], out level))
    {
      Console.Error.WriteLine("usage: first_call ADDRESS PORT [LEVEL]");
      return 2;
    }

    Log.SetFolder(Path.Combine(AppDomain.CurrentDomain.BaseDirectory, "log"));
    var sign = new Sign(args[0], port);
    string done = sign.SetBrightness(level);
    Console.WriteLine("setBrightness: " + done);

    Console.WriteLine("getDeviceName: " + sign.GetDeviceName());
    const string wanted = "限速80";
    Console.WriteLine("setDeviceName: " + sign.SetDeviceName(wanted));
    string name = sign.GetDeviceName();
    Console.WriteLine("getDeviceName: " + name);

    string limit = sign.GetCloseScreenTemperature();
    Console.WriteLine("getCloseScreenTemperature: " + limit);

    string status = sign.GetDeviceType();
    Console.Write(status.Replace("\r\n", Environment.NewLine));

    bool asWanted = done == "success" && name == wanted &&
                    limit.StartsWith("高温关屏温度:", StringComparison.Ordinal) &&
                    status.Contains("屏幕亮度:" + level + "\r\n");
    return asWanted ? 0 : 1;
  }
}
