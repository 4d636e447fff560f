// Fills in, by BouncyCastle, the last field of rows "algorithm key input ..." on standard input; skips what it lacks.
// java -cp /usr/share/java/bcprov.jar Answers.java <rows
import java.util.HexFormat;
import java.util.Map;
import java.util.Scanner;
import java.util.function.Supplier;
import org.bouncycastle.crypto.*;
import org.bouncycastle.crypto.engines.*;
import org.bouncycastle.crypto.params.*;

class Answers {
    static final Map<String, Supplier<BlockCipher>> BLOCK = Map.ofEntries(
        Map.entry("AES", AESEngine::newInstance), Map.entry("RC6", RC6Engine::new),
        Map.entry("Twofish", TwofishEngine::new), Map.entry("Serpent", SerpentEngine::new),
        Map.entry("CAST-128", CAST5Engine::new), Map.entry("CAST-256", CAST6Engine::new),
        Map.entry("IDEA", IDEAEngine::new), Map.entry("DES_EDE2", DESedeEngine::new),
        Map.entry("DES_EDE3", DESedeEngine::new), Map.entry("Camellia", CamelliaEngine::new),
        Map.entry("SEED", SEEDEngine::new), Map.entry("RC5", RC532Engine::new),
        Map.entry("Blowfish", BlowfishEngine::new), Map.entry("Skipjack", SkipjackEngine::new),
        Map.entry("SHACAL2", Shacal2Engine::new), Map.entry("TEA", TEAEngine::new),
        Map.entry("XTEA", XTEAEngine::new), Map.entry("GOST-28147-89", GOST28147Engine::new),
        Map.entry("SM4", SM4Engine::new), Map.entry("ARIA", ARIAEngine::new),
        Map.entry("Threefish-256", () -> new ThreefishEngine(256)),
        Map.entry("Threefish-512", () -> new ThreefishEngine(512)),
        Map.entry("Threefish-1024", () -> new ThreefishEngine(1024)),
        Map.entry("Kalyna-128", () -> new DSTU7624Engine(128)),
        Map.entry("Kalyna-256", () -> new DSTU7624Engine(256)),
        Map.entry("Kalyna-512", () -> new DSTU7624Engine(512)));
    static final Map<String, Supplier<StreamCipher>> STREAM =
        Map.of("Salsa20", Salsa20Engine::new, "XSalsa20", XSalsa20Engine::new);

    static byte[] reversed(byte[] bytes) {
        byte[] result = new byte[bytes.length];
        for (int i = 0; i < bytes.length; i++)
            result[i] = bytes[bytes.length - 1 - i];
        return result;
    }

    static byte[] answer(String name, byte[] key, byte[] input, int count) {
        String family = name.replaceAll("-\\d+$", "");
        if (name.equals("Skipjack"))  // byte order: see docs/FILE_FORMAT.md
            return reversed(answer("Skipjack in the order of the standard", reversed(key), reversed(input), count));
        var block = name.startsWith("Skipjack") ? BLOCK.get("Skipjack") : BLOCK.getOrDefault(name, BLOCK.get(family));
        if (block != null) {
            BlockCipher cipher = block.get();
            byte[] result = new byte[input.length];
            var plainKey = new KeyParameter(key);
            cipher.init(true, name.startsWith("RC5") ? new RC5Parameters(key, 16)
                : name.startsWith("Threefish") ? new TweakableBlockCipherParameters(plainKey, new byte[16])
                : name.startsWith("GOST") ? new ParametersWithSBox(plainKey, GOST28147Engine.getSBox("D-Test"))
                : plainKey);
            cipher.processBlock(input, 0, result, 0);
            return result;
        }
        var stream = STREAM.get(family);
        if (stream == null)
            return null;
        StreamCipher cipher = stream.get();
        cipher.init(true, new ParametersWithIV(new KeyParameter(key), input));
        byte[] result = new byte[count];
        cipher.processBytes(result, 0, count, result, 0);
        return result;
    }

    public static void main(String[] arguments) {
        HexFormat hex = HexFormat.of();
        for (Scanner in = new Scanner(System.in); in.hasNextLine();) {
            String[] row = in.nextLine().split(" ");
            if (row.length < 3 || row[0].startsWith("#"))
                continue;
            int count = row.length > 3 ? row[3].length() / 2 : 32;
            byte[] bytes = answer(row[0], hex.parseHex(row[1]), hex.parseHex(row[2]), count);
            if (bytes != null)
                System.out.println(row[0] + " " + row[1] + " " + row[2] + " " + hex.formatHex(bytes));
        }
    }
}
