// SPDX-License-Identifier: MIT
// The flat face of ToviSDK for .NET: a beginning, to be extended by the lines a host needs.
//
// The library is tovisdk.dll beside the program on Windows, libtovisdk.so where the loader looks on
// Linux. The library has 64 bits, and so must the process. What the C types become:
//
//   const char* (argument)       byte[], UTF-8 and a zero; for a path a string as
//                                UnmanagedType.LPStr, the local code page wherever the host runs
//   bool                         bool as UnmanagedType.I1: one byte, where .NET would pass four
//   char, unsigned char          byte
//   unsigned short, int          ushort, int
//   const char* or char* result  IntPtr: .NET would release a string, which it did not make
//   char** (deleteArry)          ref IntPtr
//
// Reports and values come back as GBK, code page 936. The .NET Framework knows it; Mono does with
// its CJK assemblies (Debian: libmono-i18n-cjk4.0-cil); .NET 5 and later do once its provider is
// registered, as below.
using System;
using System.Runtime.InteropServices;
using System.Text;

namespace ToviSdk
{
  internal static class Native
  {
    const string Library = "tovisdk";
    const CallingConvention Cdecl = CallingConvention.Cdecl;

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern void deleteArry(ref IntPtr text);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr setPower(byte[] ip, ushort port,
                                           [MarshalAs(UnmanagedType.I1)] bool on);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr getScreenStatus(byte[] ip, ushort port);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr setBrightness(byte[] ip, ushort port, int level);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr setDeviceName(byte[] ip, ushort port, byte[] name);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr getDeviceName(byte[] ip, ushort port);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr getDeviceType(byte[] ip, ushort port);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true)]
    internal static extern IntPtr getCloseScreenTemperature(byte[] ip, ushort port);

    [DllImport(Library, CallingConvention = Cdecl, ExactSpelling = true, BestFitMapping = false,
               ThrowOnUnmappableChar = true)]
    internal static extern void tovi_set_log_folder(
        [MarshalAs(UnmanagedType.LPStr)] string folder);
  }

  public static class Log
  {
    /// <summary>Moves the log of the whole process. By default it lies beside the executable, which
    /// for a program under Mono or dotnet may be the runtime's.</summary>
    public static void SetFolder(string folder) { Native.tovi_set_log_folder(folder); }
  }

  /// <summary>One controller. Calls on different threads are independent.</summary>
  public sealed class Sign
  {
    static readonly Encoding Gbk = CodePage936();

    readonly byte[] ip;
    readonly ushort port;

    public Sign(string address, ushort port)
    {
      ip = Text(address);
      this.port = port;
    }

    public string SetPower(bool on) { return Status(Native.setPower(ip, port, on)); }

    public string GetScreenStatus() { return Status(Native.getScreenStatus(ip, port)); }

    public string SetBrightness(int level) { return Status(Native.setBrightness(ip, port, level)); }

    public string SetDeviceName(string name)
    {
      return Status(Native.setDeviceName(ip, port, Text(name)));
    }

    public string GetDeviceName() { return Report(Native.getDeviceName(ip, port)); }

    public string GetDeviceType() { return Report(Native.getDeviceType(ip, port)); }

    public string GetCloseScreenTemperature()
    {
      return Value(Native.getCloseScreenTemperature(ip, port));
    }

    static byte[] Text(string text) { return Encoding.UTF8.GetBytes(text + "\0"); }

    // The library's own text, never to be released.
    static string Status(IntPtr text) { return Encoding.ASCII.GetString(Bytes(text)); }

    // The end is cut as bytes: half a character at the end of a controller's text takes the next
    // one along.
    static string Report(IntPtr text)
    {
      byte[] report = Taken(text);
      return Gbk.GetString(report, 0, report.Length - "interfaceEnd".Length);
    }

    static string Value(IntPtr text) { return Gbk.GetString(Taken(text)); }

    // The bytes of a text that is ours: whatever becomes of them, it goes back.
    static byte[] Taken(IntPtr text)
    {
      if (text == IntPtr.Zero) throw new OutOfMemoryException();
      try
      {
        return Bytes(text);
      }
      finally
      {
        Native.deleteArry(ref text);
      }
    }

    static byte[] Bytes(IntPtr text)
    {
      int length = 0;
      while (Marshal.ReadByte(text, length) != 0) ++length;
      var bytes = new byte[length];
      Marshal.Copy(text, bytes, 0, length);
      return bytes;
    }

    static Encoding CodePage936()
    {
#if NETCOREAPP
      Encoding.RegisterProvider(CodePagesEncodingProvider.Instance);
#endif
      // What a controller sends as text may be none: it is replaced.
      return Encoding.GetEncoding(936, EncoderFallback.ReplacementFallback,
                                  DecoderFallback.ReplacementFallback);
    }
  }
}
