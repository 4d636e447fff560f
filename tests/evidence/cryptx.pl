# For exchange.py: enciphers or deciphers each line "encrypt|decrypt data" by CryptX. Arguments: cipher, key, IV; all in
# hexadecimal. RC5 and RC6 count 16 and 20 rounds.
use strict;
use warnings;
use Crypt::Mode::CBC;
use Crypt::Stream::Sosemanuk;

my ($name, $key, $iv) = ($ARGV[0], map { pack "H*", $_ } @ARGV[1, 2]);
my $rounds = { RC5 => 16, RC6 => 20 }->{$name};
$| = 1;
while (<STDIN>) {
    my ($way, $data) = split;
    $data = pack "H*", $data;
    my $result = $rounds ? Crypt::Mode::CBC->new($name, 0, $rounds)->$way($data, $key, $iv)
                         : Crypt::Stream::Sosemanuk->new($key, $iv)->crypt($data);
    print unpack("H*", $result), "\n";
}
